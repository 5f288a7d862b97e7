#include "platform/linux/CupsLibrary.h"

#include <dlfcn.h>

#include <type_traits>

namespace mindloft::platform {
namespace {

bool Load(CupsLibrary& cups) {
  // A question that nobody waits for any more may still run in it when the program ends.
  void* handle = dlopen("libcups.so.2", RTLD_NOW | RTLD_NODELETE);
  if (!handle) return false;
  const auto find = [handle](auto& function, const char* name) {
    function = reinterpret_cast<std::decay_t<decltype(function)>>(dlsym(handle, name));
    return function != nullptr;
  };
  return find(cups.connect, "httpConnect2") && find(cups.close, "httpClose") &&
         find(cups.setTimeout, "httpSetTimeout") && find(cups.server, "cupsServer") &&
         find(cups.port, "ippPort") && find(cups.encryption, "cupsEncryption") &&
         find(cups.setPasswordCallback, "cupsSetPasswordCB2") &&
         find(cups.getDestinations, "cupsGetDests2") && find(cups.freeDestinations, "cupsFreeDests") &&
         find(cups.getDestination, "cupsGetNamedDest") && find(cups.getOption, "cupsGetOption") &&
         find(cups.copyInfo, "cupsCopyDestInfo") && find(cups.freeInfo, "cupsFreeDestInfo") &&
         find(cups.mediaCount, "cupsGetDestMediaCount") &&
         find(cups.mediaByIndex, "cupsGetDestMediaByIndex") &&
         find(cups.mediaDefault, "cupsGetDestMediaDefault") &&
         find(cups.localizeMedia, "cupsLocalizeDestMedia") && find(cups.standardMedia, "pwgMediaForPWG");
}

}  // namespace

const CupsLibrary* CupsLibrary::Get() {
  static CupsLibrary cups;
  static const bool isLoaded = Load(cups);
  return isLoaded ? &cups : nullptr;
}

}  // namespace mindloft::platform
