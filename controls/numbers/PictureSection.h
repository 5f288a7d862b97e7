#pragma once

#include <wx/string.h>

#include <cstddef>
#include <optional>
#include <vector>

#include "controls/numbers/NumberText.h"

namespace mindloft {

/// One section of a number picture; NumberPicture tells the language.
class PictureSection {
 public:
  PictureSection() = default;
  /// `text` from `at` on; leaves `at` behind the ";" that ends the section, or at the end.
  PictureSection(const wxString& text, std::size_t& at);

  bool IsEmpty() const { return tokens_.empty(); }
  bool HasPlace() const { return wholePlaces_ + fractionPlaces_ > 0; }
  /// Whether no digit of the number would be shown, or only zeros.
  bool ShowsZero(double number) const;
  /// Without a sign.
  wxString Format(double number) const;
  /// The number whose format reads so; nothing when the literals around the digits differ, or the digits are
  /// no number.
  std::optional<double> Read(const wxString& text, LoneComma comma) const;
  /// Whether it shows groups of digits.
  bool IsGrouped() const { return grouped_; }

 private:
  enum class Kind { Literal, Digit, Zero, Point };
  struct Token {
    Kind kind;
    wxString literal;
  };

  void AddLiteral(wxUniChar character);
  void AddPlace(Kind kind);
  void CloseWholePart();
  void FormatWhole(wxString& result, std::size_t index, const std::string& digits) const;
  void FormatFraction(wxString& result, std::size_t index, const std::string& digits) const;

  std::vector<Token> tokens_;
  std::size_t wholePlaces_ = 0;
  std::size_t leastWhole_ = 0;  ///< digits that are shown even when they are leading zeros
  std::size_t fractionPlaces_ = 0;
  std::size_t leastFraction_ = 0;  ///< digits that are shown even when they are trailing zeros
  bool hasPoint_ = false;
  bool grouped_ = false;
  std::size_t commas_ = 0;  ///< since the last place of the whole part
  int shift_ = 0;           ///< the power of ten by which the number is shown larger
};

}  // namespace mindloft
