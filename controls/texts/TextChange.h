#pragma once

#include <wx/string.h>

#include <cstddef>

namespace mindloft {

/// One change of a text: at one place a piece was replaced by another.
struct TextChange {
  std::size_t at = 0;  ///< in the text's own units
  wxString removed;
  wxString inserted;

  bool IsNone() const { return removed.empty() && inserted.empty(); }
  wxString Applied(const wxString& before) const;
  wxString Reverted(const wxString& after) const;
};

/// The smallest change that makes one text of the other; it parts no character.
TextChange DifferenceOf(const wxString& before, const wxString& after);

/// What a box for numbers lets in; Backspace among the keys.
inline constexpr const char* kNumberCharacters = "1234567890\b.";

/// What may be typed or pasted into a box.
struct TextRules {
  bool isNumber = false;   ///< only "0" to "9" and "."
  bool manyLines = false;  ///< line breaks and tabulators stay; else each run of breaks becomes a blank
  int maxLength = 0;       ///< characters (not units); 0: no limit
};

/// What of `inserted` the rules let into a text that has `others` characters beside it.
wxString Permitted(const wxString& inserted, std::size_t others, const TextRules& rules);

/// The text's first character; 0 of an empty text.
char32_t FirstCharacterOf(const wxString& text);

/// The number of characters (code points) of a text.
std::size_t CountCharacters(const wxString& text);

/// The text's beginning of at most so many characters, without parting what a reader sees as one character.
wxString FirstCharacters(const wxString& text, std::size_t most);

/// The text as a box can hold it: the replacement character for NUL, at which boxes end a text.
wxString Holdable(const wxString& text);

}  // namespace mindloft
