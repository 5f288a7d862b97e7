#include "backend/directory/session/Base64.h"

#include <cstdint>

namespace mindloft {
namespace {

constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

}  // namespace

std::string ToBase64(std::string_view bytes) {
  std::string text;
  std::uint32_t bits = 0;
  int count = 0;
  for (unsigned char byte : bytes) {
    bits = bits << 8 | byte;
    for (count += 8; count >= 6; count -= 6) text += kDigits[bits >> (count - 6) & 63];
  }
  if (count > 0) text += kDigits[bits << (6 - count) & 63];
  return text;
}

std::optional<std::string> FromBase64(std::string_view text) {
  if (text.size() % 4 == 1) return {};
  std::string bytes;
  std::uint32_t bits = 0;
  int count = 0;
  for (char c : text) {
    auto digit = kDigits.find(c);
    if (digit == std::string_view::npos) return {};
    bits = bits << 6 | static_cast<std::uint32_t>(digit);
    count += 6;
    if (count < 8) continue;
    count -= 8;
    bytes += static_cast<char>(bits >> count & 255);
  }
  return bytes;
}

}  // namespace mindloft
