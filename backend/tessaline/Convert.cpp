#include "backend/tessaline/Convert.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"

namespace mindloft::Tessaline {
namespace {

struct Decimal {
  std::string text;  ///< without blanks and plus sign, as from_chars reads it
  bool magnitudeAboveOne = false;
};

[[noreturn]] void ThrowNoNumber(const wxString& value) {
  throw Error(ErrorNumber::TypeMismatch, "no number: " + ToUtf8(value.Left(100)));
}

[[noreturn]] void ThrowTooLarge(const wxString& value) {
  throw Error(ErrorNumber::Overflow, "the number is too large: " + ToUtf8(value.Left(100)));
}

/// Reads digits from `at` on; whether there was one. `nonZero` tells of a digit other than 0.
bool SkipDigits(const std::string& text, std::size_t& at, bool& nonZero) {
  auto start = at;
  for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) nonZero |= text[at] != '0';
  return at > start;
}

/// [sign] digits ["." digits] ["e" [sign] digits], with a digit before or after the point.
Decimal ParseDecimal(const wxString& value, const wxString& trimmed) {
  Decimal decimal{ToUtf8(trimmed)};
  std::string& text = decimal.text;
  std::size_t at = text[0] == '-' ? 1 : 0;
  if (text[0] == '+') text.erase(0, 1);
  bool ignored = false;
  bool digits = SkipDigits(text, at, decimal.magnitudeAboveOne);
  if (at < text.size() && text[at] == '.') {
    ++at;
    digits |= SkipDigits(text, at, ignored);
  }
  if (digits && at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (negative || text[at] == '+')) ++at;
    digits = SkipDigits(text, at, ignored);
    decimal.magnitudeAboveOne = !negative;
  }
  if (!digits || at != text.size()) ThrowNoNumber(value);
  return decimal;
}

double ToNumber(const wxString& value) {
  wxString trimmed = value;
  trimmed.Trim(true).Trim(false);
  if (trimmed.empty()) return 0;
  Decimal decimal = ParseDecimal(value, trimmed);
  double number = 0;
  auto result = std::from_chars(decimal.text.data(), decimal.text.data() + decimal.text.size(), number);
  if (result.ec == std::errc::result_out_of_range) {
    if (decimal.magnitudeAboveOne) ThrowTooLarge(value);
    return 0;
  }
  return number;
}

double ToWholeNumber(const wxString& value) {
  return std::nearbyint(ToNumber(value));
}

template <typename Integer>
Integer ToWidth(const wxString& value) {
  double number = ToWholeNumber(value);
  if (number < std::numeric_limits<Integer>::min() || number > std::numeric_limits<Integer>::max()) {
    ThrowTooLarge(value);
  }
  return static_cast<Integer>(number);
}

}  // namespace

std::int16_t Convert::ToInteger(const wxString& value) const {
  return ToWidth<std::int16_t>(value);
}

std::int32_t Convert::ToLong(const wxString& value) const {
  return ToWidth<std::int32_t>(value);
}

double Convert::ToDouble(const wxString& value) const {
  return ToNumber(value);
}

bool Convert::ToBoolean(const wxString& value) const {
  wxString trimmed = value;
  trimmed.Trim(true).Trim(false);
  if (trimmed.IsSameAs("true", false)) return true;
  if (trimmed.IsSameAs("false", false)) return false;
  return ToWholeNumber(value) != 0;
}

}  // namespace mindloft::Tessaline
