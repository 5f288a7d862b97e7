#include "platform/ui/PercentCode.h"

#include <charconv>

namespace mindloft::platform {

std::string PercentEncoded(std::string_view text) {
  constexpr char Digits[] = "0123456789ABCDEF";
  std::string encoded;
  encoded.reserve(text.size());
  for (unsigned char c : text) {
    if (c >= 0x20 && c < 0x7F && c != '%') {
      encoded += static_cast<char>(c);
    } else {
      encoded += {'%', Digits[c >> 4], Digits[c & 15]};
    }
  }
  return encoded;
}

std::string PercentDecoded(std::string_view text) {
  std::string decoded;
  decoded.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    unsigned byte = 0;
    if (text[i] == '%' && text.size() - i > 2) {
      const char* digits = text.data() + i + 1;
      auto [end, failure] = std::from_chars(digits, digits + 2, byte, 16);
      if (failure == std::errc() && end == digits + 2) {
        decoded += static_cast<char>(byte);
        i += 2;
        continue;
      }
    }
    decoded += text[i];
  }
  return decoded;
}

}  // namespace mindloft::platform
