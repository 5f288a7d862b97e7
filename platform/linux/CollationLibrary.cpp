#include "platform/CollationLibrary.h"

#include <dlfcn.h>

#include <string>

#include "backend/errors/Error.h"

// The library's names carry its version, which its headers put into them by macros.
#define MINDLOFT_QUOTED(name) #name
#define MINDLOFT_NAME(function) MINDLOFT_QUOTED(function)

namespace mindloft::platform {
namespace {

/// It brings that of the common functions with it.
constexpr const char* kFile = "libicui18n.so." U_ICU_VERSION_SHORT;

CollationLibrary Load() {
  const auto missing = [] { return Error(ErrorNumber::CollationMissing, dlerror()); };
  void* handle = dlopen(kFile, RTLD_NOW | RTLD_NODELETE);
  if (!handle) throw missing();
  const auto find = [&](auto& function, const char* name) {
    function = reinterpret_cast<std::decay_t<decltype(function)>>(dlsym(handle, name));
    if (!function) throw missing();
  };
  CollationLibrary library;
  find(library.open, MINDLOFT_NAME(ucol_open));
  find(library.close, MINDLOFT_NAME(ucol_close));
  find(library.setStrength, MINDLOFT_NAME(ucol_setStrength));
  find(library.setAttribute, MINDLOFT_NAME(ucol_setAttribute));
  find(library.getSortKey, MINDLOFT_NAME(ucol_getSortKey));
  find(library.getVersion, MINDLOFT_NAME(ucol_getVersion));
  find(library.fromUtf8, MINDLOFT_NAME(u_strFromUTF8WithSub));
  find(library.errorName, MINDLOFT_NAME(u_errorName));
  find(library.versionToString, MINDLOFT_NAME(u_versionToString));
  return library;
}

}  // namespace

const CollationLibrary& CollationLibrary::Get() {
  static const CollationLibrary library = Load();
  return library;
}

}  // namespace mindloft::platform
