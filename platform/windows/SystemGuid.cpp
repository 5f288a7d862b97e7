#include "platform/SystemGuid.h"

#include <windows.h>
#include <objbase.h>

namespace mindloft::platform {

std::string SystemGuidBytes() {
  GUID guid{};
  if (FAILED(CoCreateGuid(&guid))) return {};
  static_assert(sizeof guid == 16);
  return std::string(reinterpret_cast<const char*>(&guid), sizeof guid);
}

}  // namespace mindloft::platform
