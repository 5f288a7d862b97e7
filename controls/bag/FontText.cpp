#include "controls/bag/FontText.h"

#include <wx/arrstr.h>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"

namespace mindloft {
namespace {

constexpr double kLargest = 1000;  // points; more than any screen shows

[[noreturn]] void ThrowNoFont(const wxString& text) {
  throw Error(ErrorNumber::TypeMismatch, "\"" + ToUtf8(text) + "\" is no font");
}

/// False when the word is none of a font's.
bool Apply(const wxString& word, wxFontInfo& font) {
  wxString number;
  long weight = 0;
  if (word == "Bold") {
    font.Bold();
  } else if (word == "Italic") {
    font.Italic();
  } else if (word == "Underline") {
    font.Underlined();
  } else if (word == "Strikethrough") {
    font.Strikethrough();
  } else if (word.StartsWith("Weight ", &number) && number.ToCLong(&weight) && weight > 0 &&
             weight <= wxFONTWEIGHT_MAX) {
    font.Weight(static_cast<int>(weight));
  } else {
    return false;
  }
  return true;
}

}  // namespace

wxString PropertyText<wxFont>::Format(const wxFont& value) {
  if (!value.IsOk()) return {};
  wxString text = value.GetFaceName() + ", " + wxString::FromCDouble(value.GetFractionalPointSize(), 2);
  if (text.Contains(".")) {
    while (text.EndsWith("0")) text.RemoveLast();
    if (text.EndsWith(".")) text.RemoveLast();
  }
  const int weight = value.GetNumericWeight();
  if (weight == wxFONTWEIGHT_BOLD)
    text += ", Bold";
  else if (weight != wxFONTWEIGHT_NORMAL)
    text += wxString::Format(", Weight %d", weight);
  if (value.GetStyle() != wxFONTSTYLE_NORMAL) text += ", Italic";
  if (value.GetUnderlined()) text += ", Underline";
  if (value.GetStrikethrough()) text += ", Strikethrough";
  return text;
}

wxFont PropertyText<wxFont>::Parse(const wxString& text) {
  if (text.empty()) return {};
  // From the end: the face itself may hold commas.
  wxArrayString words;
  wxString face = text;
  double points = 0;
  for (;;) {
    const wxString word = face.AfterLast(',').Trim(false);
    if (!face.Contains(",")) ThrowNoFont(text);
    face = face.BeforeLast(',');
    if (word.ToCDouble(&points)) break;
    words.push_back(word);
  }
  if (face.empty() || !(points > 0 && points <= kLargest)) ThrowNoFont(text);
  wxFontInfo font(points);
  font.FaceName(face);
  for (const wxString& word : words) {
    if (!Apply(word, font)) ThrowNoFont(text);
  }
  return wxFont(font);
}

}  // namespace mindloft
