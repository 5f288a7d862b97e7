#pragma once

#include <wx/string.h>

#include <cstdint>

namespace mindloft::Tessaline {

/// Conversions of texts to numbers. Blanks around the number are ignored; for a whole number a fraction is
/// rounded to the nearest, halves to the even one. A text that is no number is a TypeMismatch, one that does
/// not fit an Overflow.
class Convert {
 public:
  /// 16 bits. An empty text gives 0.
  std::int16_t ToInteger(const wxString& value) const;
  /// 32 bits. An empty text gives 0.
  std::int32_t ToLong(const wxString& value) const;
  /// An empty text gives 0, as does one that is nearer to 0 than a double can be.
  double ToDouble(const wxString& value) const;
  /// "True", "False" (any case) or a number, 0 being false. An empty text gives false.
  bool ToBoolean(const wxString& value) const;
};

}  // namespace mindloft::Tessaline
