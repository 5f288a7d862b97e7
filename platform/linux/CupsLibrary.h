#pragma once

#include <cups/cups.h>
#include <cups/pwg.h>

namespace mindloft::platform {

/// What is used of the print server's library. It is loaded when the printers are asked: it brings so many
/// libraries that every start of the program would pay for them.
struct CupsLibrary {
  decltype(&httpConnect2) connect = nullptr;
  decltype(&httpClose) close = nullptr;
  decltype(&httpSetTimeout) setTimeout = nullptr;
  decltype(&cupsServer) server = nullptr;
  decltype(&ippPort) port = nullptr;
  decltype(&cupsEncryption) encryption = nullptr;
  decltype(&cupsSetPasswordCB2) setPasswordCallback = nullptr;
  decltype(&cupsGetDests2) getDestinations = nullptr;
  decltype(&cupsFreeDests) freeDestinations = nullptr;
  decltype(&cupsGetNamedDest) getDestination = nullptr;
  decltype(&cupsGetOption) getOption = nullptr;
  decltype(&cupsCopyDestInfo) copyInfo = nullptr;
  decltype(&cupsFreeDestInfo) freeInfo = nullptr;
  decltype(&cupsGetDestMediaCount) mediaCount = nullptr;
  decltype(&cupsGetDestMediaByIndex) mediaByIndex = nullptr;
  decltype(&cupsGetDestMediaDefault) mediaDefault = nullptr;
  decltype(&cupsLocalizeDestMedia) localizeMedia = nullptr;
  decltype(&pwgMediaForPWG) standardMedia = nullptr;

  /// Null where this system has no such library. From any thread.
  static const CupsLibrary* Get();
};

}  // namespace mindloft::platform
