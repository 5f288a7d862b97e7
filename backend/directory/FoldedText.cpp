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

constexpr auto kCompatible =
    static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE | UTF8PROC_COMPAT);

/// The text, which must be whole UTF-8, mapped with these options.
std::string Mapped(std::string_view utf8, utf8proc_option_t options) {
  utf8proc_uint8_t* mapped = nullptr;
  auto length = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(utf8.data()),
                             static_cast<utf8proc_ssize_t>(utf8.size()), &mapped, options);
  std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(mapped, &std::free);
  if (length == UTF8PROC_ERROR_NOMEM) throw std::bad_alloc();
  if (length < 0) throw Error(ErrorNumber::Unexpected, utf8proc_errmsg(length));
  return std::string(reinterpret_cast<const char*>(mapped), static_cast<std::size_t>(length));
}

void ReplaceAll(std::string& text, std::string_view what, std::string_view with) {
  for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
}

}  // namespace

std::string FoldedText(std::string_view utf8) {
  // Most names are ASCII, where folding is lower case and nothing else.
  if (IsAscii(utf8)) return LowerAscii(utf8);
  return Mapped(WithoutBrokenBytes(utf8),
                static_cast<utf8proc_option_t>(kCompatible | UTF8PROC_CASEFOLD | UTF8PROC_IGNORE));
}

std::string FoldedText(std::string_view utf8, Folding folding) {
  if (folding == Folding::Neutral) return FoldedText(utf8);
  std::string text(utf8);
  // A dot above a capital I, and an I of another width, are the letters themselves only when composed.
  if (!IsAscii(text)) text = Mapped(WithoutBrokenBytes(text), kCompatible);
  ReplaceAll(text, "\xC4\xB0", "i");  // İ
  ReplaceAll(text, "I", "\xC4\xB1");  // ı
  return FoldedText(text);
}

}  // namespace mindloft
