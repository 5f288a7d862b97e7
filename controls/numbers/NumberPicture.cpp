#include "controls/numbers/NumberPicture.h"

#include <cmath>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"
#include "controls/numbers/NumberText.h"

namespace mindloft {

NumberPicture::NumberPicture(const wxString& picture) : text_(picture) {
  wxString trimmed = picture;
  if (trimmed.Trim().empty()) return;
  std::size_t at = 0;
  for (PictureSection& section : sections_) section = PictureSection(picture, at);
  if (!sections_[Positive].HasPlace())
    throw Error(ErrorNumber::TypeMismatch, "\"" + ToUtf8(picture) + "\" has no place for a digit");
}

wxString NumberPicture::Format(double number) const {
  if (!std::isfinite(number)) return {};
  if (IsBlank()) return NumberText(number);
  if (number == 0 && !sections_[Zero].IsEmpty()) return sections_[Zero].Format(number);
  if (number < 0 && !sections_[Negative].IsEmpty()) return sections_[Negative].Format(number);
  const PictureSection& section = sections_[Positive];
  const bool minus = number < 0 && !section.ShowsZero(number);
  return (minus ? "-" : "") + section.Format(number);
}

std::optional<double> NumberPicture::Read(const wxString& text, LoneComma comma) const {
  if (sections_[Positive].IsGrouped()) comma = LoneComma::Groups;
  if (IsBlank()) return ReadNumber(text, comma);
  // Exact texts first: the sections' literals may look like parts of a number.
  wxString rest;
  if (!sections_[Zero].IsEmpty() && text == sections_[Zero].Format(0)) return 0;
  if (const auto number = sections_[Positive].Read(text, comma)) return number;
  if (!sections_[Negative].IsEmpty()) {
    if (const auto number = sections_[Negative].Read(text, comma)) return -std::fabs(*number);
  } else if (text.StartsWith("-", &rest)) {
    if (const auto number = sections_[Positive].Read(rest, comma)) return -std::fabs(*number);
  }
  return ReadNumber(text, comma);
}

}  // namespace mindloft
