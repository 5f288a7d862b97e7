#include "platform/linux/CupsLibrary.h"

#include "platform/linux/LoadedLibrary.h"

namespace mindloft::platform {
namespace {

bool Load(CupsLibrary& cups) {
  const LoadedLibrary library("libcups.so.2");
  if (!library) return false;
  const auto find = [&library](auto& function, const char* name) { return library.Find(function, name); };
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
