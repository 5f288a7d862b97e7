#include "platform/CollationLibrary.h"

namespace mindloft::platform {

const CollationLibrary& CollationLibrary::Get() {
  // It is part of the program.
  static constexpr CollationLibrary library{ucol_open,         ucol_close,      ucol_setStrength,
                                            ucol_setAttribute, ucol_getSortKey, u_strFromUTF8WithSub,
                                            u_errorName};
  return library;
}

}  // namespace mindloft::platform
