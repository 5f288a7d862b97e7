#include "platform/SystemGuid.h"

#include <sys/random.h>

namespace mindloft::platform {

std::string SystemGuidBytes() {
  unsigned char bytes[16];
  if (getrandom(bytes, sizeof bytes, 0) != static_cast<ssize_t>(sizeof bytes)) return {};
  // Version 4, variant 1 (RFC 4122); the third group is kept with its low byte first.
  bytes[7] = static_cast<unsigned char>((bytes[7] & 0x0F) | 0x40);
  bytes[8] = static_cast<unsigned char>((bytes[8] & 0x3F) | 0x80);
  return std::string(bytes, bytes + sizeof bytes);
}

}  // namespace mindloft::platform
