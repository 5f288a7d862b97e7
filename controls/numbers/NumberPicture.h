#pragma once

#include <wx/string.h>

#include <array>
#include <optional>

#include "controls/numbers/PictureSection.h"

namespace mindloft {

/// How a number is shown, told by a picture of it:
///
///   0      a digit, 0 where the number has none
///   #      a digit, nothing where the number has none
///   .      begins the decimals
///   ,      between digits: groups of thousands ("#,##0"); behind the last whole digit: divides by a thousand
///   %      shown as it is, and the number times a hundred
///   "kg"   shown as it is; so is the character behind a \, and every character that means nothing here
///   ;      ends a section: "positive;negative;zero". Without its own (or with an empty) section a negative
///   number
///          takes the first with a minus sign before it, and zero the first
///
/// Decimals that have no place are rounded, halves away from zero. Whole digits that have no place are shown
/// all the same. "." and "," are what is shown, whatever the system's language. A blank picture shows a
/// number as NumberText does.
class NumberPicture {
 public:
  NumberPicture() = default;
  /// Throws TypeMismatch for a picture that is not blank and whose first section has no place for a digit.
  explicit NumberPicture(const wxString& picture);

  const wxString& Text() const { return text_; }
  /// Nothing is shown of what is no number (infinity).
  wxString Format(double number) const;
  /// The number that a text shows: one that this picture has made, or any that ReadNumber knows. Where the
  /// picture shows groups, a comma is always one's sign.
  std::optional<double> Read(const wxString& text, LoneComma comma = LoneComma::Groups) const;

 private:
  bool IsBlank() const { return sections_[Positive].IsEmpty(); }

  enum Section { Positive, Negative, Zero, Sections };

  wxString text_;
  std::array<PictureSection, Sections> sections_;
};

}  // namespace mindloft
