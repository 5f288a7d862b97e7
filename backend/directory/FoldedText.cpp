#include "backend/directory/FoldedText.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>

#include "backend/errors/Error.h"

namespace mindloft {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string LowerAscii(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
  }
  return lower;
}

std::string WithoutBrokenBytes(std::string_view text) {
  std::string clean;
  clean.reserve(text.size());
  while (!text.empty()) {
    utf8proc_int32_t character = 0;
    auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                   static_cast<utf8proc_ssize_t>(text.size()), &character);
    if (length > 0) {
      clean += text.substr(0, static_cast<std::size_t>(length));
      text.remove_prefix(static_cast<std::size_t>(length));
    } else {
      clean += kReplacement;
      text.remove_prefix(1);
    }
  }
  return clean;
}

}  // namespace

std::string FoldedText(std::string_view utf8) {
  // Most names are ASCII, where folding is lower case and nothing else.
  if (IsAscii(utf8)) return LowerAscii(utf8);
  std::string clean = WithoutBrokenBytes(utf8);
  constexpr auto kOptions = static_cast<utf8proc_option_t>(
      UTF8PROC_STABLE | UTF8PROC_COMPOSE | UTF8PROC_COMPAT | UTF8PROC_CASEFOLD | UTF8PROC_IGNORE);
  utf8proc_uint8_t* folded = nullptr;
  auto length = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(clean.data()),
                             static_cast<utf8proc_ssize_t>(clean.size()), &folded, kOptions);
  std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(folded, &std::free);
  if (length == UTF8PROC_ERROR_NOMEM) throw std::bad_alloc();
  if (length < 0) throw Error(ErrorNumber::Unexpected, utf8proc_errmsg(length));
  return std::string(reinterpret_cast<const char*>(folded), static_cast<std::size_t>(length));
}

}  // namespace mindloft
