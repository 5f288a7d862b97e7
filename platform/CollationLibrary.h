#pragma once

#include <unicode/ucol.h>
#include <unicode/ustring.h>

namespace mindloft::platform {

/// What is used of the library of the languages' orders (ICU). Where the system keeps it, it is loaded when
/// the first order is asked for, which takes a millisecond: whoever is in a hurry asks on another thread.
struct CollationLibrary {
  decltype(&ucol_open) open = nullptr;
  decltype(&ucol_close) close = nullptr;
  decltype(&ucol_setStrength) setStrength = nullptr;
  decltype(&ucol_setAttribute) setAttribute = nullptr;
  decltype(&ucol_getSortKey) getSortKey = nullptr;
  decltype(&u_strFromUTF8WithSub) fromUtf8 = nullptr;
  decltype(&u_errorName) errorName = nullptr;

  /// From any thread. CollationMissing where this system has no such library.
  static const CollationLibrary& Get();
};

}  // namespace mindloft::platform
