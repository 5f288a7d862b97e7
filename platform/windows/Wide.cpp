#include "platform/windows/Wide.h"

#include <windows.h>

#include "platform/Unicode.h"

namespace mindloft::platform {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

std::wstring Wide(std::string_view utf8) {
  auto utf16 = Utf16FromUtf8(utf8);
  return std::wstring(utf16.begin(), utf16.end());
}

std::string Narrow(std::wstring_view wide) {
  return Utf8FromUtf16(std::u16string(wide.begin(), wide.end()));
}

std::string SystemErrorText(unsigned long error) {
  wchar_t text[512];
  auto length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                               text, 512, nullptr);
  while (length > 0 && (text[length - 1] == L'\r' || text[length - 1] == L'\n')) --length;
  return std::to_string(error) + ";" + Narrow({text, length});
}

}  // namespace mindloft::platform
