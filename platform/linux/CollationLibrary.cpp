#include "platform/CollationLibrary.h"

#include "backend/errors/Error.h"
#include "platform/linux/LoadedLibrary.h"

// The library's names carry its version, which its headers put into them by macros.
#define MINDLOFT_QUOTED(name) #name
#define MINDLOFT_NAME(function) MINDLOFT_QUOTED(function)

namespace mindloft::platform {
namespace {

/// It brings that of the common functions with it.
constexpr const char* kFile = "libicui18n.so." U_ICU_VERSION_SHORT;

CollationLibrary Load() {
  const auto require = [](bool found) {
    if (!found) throw Error(ErrorNumber::CollationMissing, dlerror());
  };
  const LoadedLibrary icu(kFile);
  require(static_cast<bool>(icu));
  const auto find = [&](auto& function, const char* name) { require(icu.Find(function, name)); };
  CollationLibrary library;
  find(library.open, MINDLOFT_NAME(ucol_open));
  find(library.close, MINDLOFT_NAME(ucol_close));
  find(library.setStrength, MINDLOFT_NAME(ucol_setStrength));
  find(library.setAttribute, MINDLOFT_NAME(ucol_setAttribute));
  find(library.getSortKey, MINDLOFT_NAME(ucol_getSortKey));
  find(library.fromUtf8, MINDLOFT_NAME(u_strFromUTF8WithSub));
  find(library.errorName, MINDLOFT_NAME(u_errorName));
  return library;
}

}  // namespace

const CollationLibrary& CollationLibrary::Get() {
  static const CollationLibrary library = Load();
  return library;
}

}  // namespace mindloft::platform
