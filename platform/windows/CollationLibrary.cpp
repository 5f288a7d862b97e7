#include "platform/CollationLibrary.h"

namespace mindloft::platform {

const CollationLibrary& CollationLibrary::Get() {
  // It is part of the program.
  static constexpr CollationLibrary library{
      ucol_open,       ucol_close,           ucol_setStrength, ucol_setAttribute, ucol_getSortKey,
      ucol_getVersion, u_strFromUTF8WithSub, u_errorName,      u_versionToString};
  return library;
}

}  // namespace mindloft::platform
