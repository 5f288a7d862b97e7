#include "backend/directory/store/TextRules.h"

#include <utf8proc.h>

#include "backend/directory/FoldedText.h"
#include "backend/errors/Error.h"

namespace mindloft {
namespace {

/// Calls `use(code point, its bytes)` for each character; false when the text is no UTF-8.
template <typename Use>
bool ForEachCharacter(std::string_view utf8, Use use) {
  auto* next = reinterpret_cast<const utf8proc_uint8_t*>(utf8.data());
  auto left = static_cast<utf8proc_ssize_t>(utf8.size());
  while (left > 0) {
    utf8proc_int32_t character = 0;
    utf8proc_ssize_t bytes = utf8proc_iterate(next, left, &character);
    if (bytes <= 0) return false;
    use(character, static_cast<std::size_t>(bytes));
    next += bytes;
    left -= bytes;
  }
  return true;
}

/// Embeddings, overrides and isolates: they would let a name show as another one.
bool TurnsDirection(utf8proc_int32_t character) {
  return (character >= 0x202a && character <= 0x202e) || (character >= 0x2066 && character <= 0x2069);
}

bool AllowedInLine(utf8proc_int32_t character) {
  auto category = utf8proc_category(character);
  return category != UTF8PROC_CATEGORY_CC && category != UTF8PROC_CATEGORY_ZL &&
         category != UTF8PROC_CATEGORY_ZP && !TurnsDirection(character);
}

bool AllowedInText(utf8proc_int32_t character) {
  return character == '\t' || character == '\r' || character == '\n' ||
         utf8proc_category(character) != UTF8PROC_CATEGORY_CC;
}

std::string Checked(std::string_view text, const char* field, std::size_t length,
                    bool (*allowed)(utf8proc_int32_t)) {
  std::size_t count = 0;
  bool clean = true;
  bool utf8 = ForEachCharacter(text, [&](utf8proc_int32_t character, std::size_t) {
    ++count;
    clean = clean && allowed(character);
  });
  if (!utf8 || !clean) throw Error(ErrorNumber::TextInvalid, field, {field});
  if (count > length) throw Error(ErrorNumber::TextTooLong, field, {field, std::to_string(length)});
  return std::string(text);
}

std::string_view Trimmed(std::string_view text) {
  std::size_t at = 0, begin = std::string_view::npos, end = 0;
  ForEachCharacter(text, [&](utf8proc_int32_t character, std::size_t bytes) {
    if (utf8proc_category(character) != UTF8PROC_CATEGORY_ZS) {
      if (begin == std::string_view::npos) begin = at;
      end = at + bytes;
    }
    at += bytes;
  });
  return begin == std::string_view::npos ? std::string_view() : text.substr(begin, end - begin);
}

}  // namespace

std::optional<std::size_t> CharacterCount(std::string_view utf8) {
  std::size_t count = 0;
  if (!ForEachCharacter(utf8, [&](utf8proc_int32_t, std::size_t) { ++count; })) return {};
  return count;
}

std::string CheckedName(std::string_view text, const char* field) {
  // Broken text is refused before anything is cut off.
  if (!CharacterCount(text)) throw Error(ErrorNumber::TextInvalid, field, {field});
  std::string name = Checked(Trimmed(text), field, kNameLength, AllowedInLine);
  // The folded form has lost the invisible characters.
  if (Trimmed(FoldedText(name)).empty()) throw Error(ErrorNumber::NameMissing, field);
  return name;
}

std::string CheckedLine(std::string_view text, const char* field, std::size_t length) {
  return Checked(text, field, length, AllowedInLine);
}

std::string CheckedText(std::string_view text, const char* field, std::size_t length) {
  return Checked(text, field, length, AllowedInText);
}

}  // namespace mindloft
