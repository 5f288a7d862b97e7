#include "backend/corvane/document/BrokenDocument.h"

#include <charconv>
#include <optional>
#include <utility>

#include "platform/Unicode.h"

namespace mindloft::Corvane {
namespace {

constexpr std::pair<std::string_view, std::string_view> kNamed[] = {
    {"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {"quot", "\""}, {"apos", "'"}, {"nbsp", "\xC2\xA0"}, {"shy", ""},
};
constexpr std::size_t kLongestReference = 10;

std::optional<std::string> OfNumber(std::string_view digits) {
  int base = 10;
  if (digits.starts_with('x') || digits.starts_with('X')) {
    base = 16;
    digits.remove_prefix(1);
  }
  unsigned code = 0;
  const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), code, base);
  const bool isNumber = !digits.empty() && problem == std::errc() && end == digits.data() + digits.size();
  const bool isCharacter = code >= 0x20 && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
  if (!isNumber || !isCharacter) return std::nullopt;
  std::u16string units;
  if (code >= 0x10000) {
    units += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
    units += static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
  } else {
    units += static_cast<char16_t>(code);
  }
  return platform::Utf8FromUtf16(units);
}

std::optional<std::string> OfReference(std::string_view name) {
  if (name.starts_with('#')) return OfNumber(name.substr(1));
  for (const auto& [known, text] : kNamed) {
    if (known == name) return std::string(text);
  }
  return std::nullopt;
}

void AddLineBreak(std::string& text) {
  if (!text.empty() && text.back() != '\n') text += '\n';
}

}  // namespace

std::string WithoutReferences(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    const auto start = text.find('&');
    plain += text.substr(0, start);
    if (start == std::string_view::npos) break;
    text.remove_prefix(start);
    const auto end = text.substr(0, kLongestReference).find(';');
    const auto found = end == std::string_view::npos ? std::nullopt : OfReference(text.substr(1, end - 1));
    plain += found ? *found : "&";
    text.remove_prefix(found ? end + 1 : 1);
  }
  return plain;
}

std::string TextOfBrokenDocument(std::string_view markup) {
  std::string text;
  bool isInRun = false;
  while (!markup.empty()) {
    const auto tag = markup.find('<');
    if (isInRun) {
      std::string_view run = markup.substr(0, tag);
      if (run.starts_with('"')) run.remove_prefix(1);
      if (run.ends_with('"')) run.remove_suffix(1);
      text += WithoutReferences(run);
    }
    if (tag == std::string_view::npos) break;
    markup.remove_prefix(tag);
    if (markup.starts_with("</paragraph")) AddLineBreak(text);
    isInRun = markup.starts_with("<text>") || markup.starts_with("<text ");
    const auto end = markup.find('>');
    if (end == std::string_view::npos) break;
    markup.remove_prefix(end + 1);
  }
  if (text.ends_with('\n')) text.pop_back();
  return text;
}

}  // namespace mindloft::Corvane
