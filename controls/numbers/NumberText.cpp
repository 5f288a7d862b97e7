#include "controls/numbers/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "backend/errors/Error.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/numbers/FilterKey.h"

namespace mindloft {
namespace {

/// What a person can be expected to read; also a guard against texts of megabytes.
constexpr std::size_t kLongestNumber = 1000;

bool IsDigit(wxUniChar character) {
  return character >= '0' && character <= '9';
}

/// The number without its grouping; nothing when a comma stands where none can.
std::optional<wxString> WithoutGrouping(const wxString& text) {
  if (text.length() > kLongestNumber) return std::nullopt;
  wxString plain;
  bool grouping = false;  // from the first digit of the whole part to its end
  bool whole = true;
  for (const wxUniChar each : text) {
    if (each == ',') {
      if (!grouping) return std::nullopt;
      continue;
    }
    if (IsDigit(each))
      grouping = whole;
    else if (grouping)
      whole = grouping = false;
    else if (each == '.')
      whole = false;
    plain += each;
  }
  return plain;
}

bool AreDigits(const wxString& text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), IsDigit);
}

/// Whether the number has one comma, and that cannot group its digits.
bool HasDecimalComma(const wxString& text) {
  constexpr std::size_t kGroup = 3;
  wxString decimals;
  wxString whole = text.BeforeFirst(',', &decimals);
  if (whole.StartsWith("-") || whole.StartsWith("+")) whole.erase(0, 1);
  if (!AreDigits(whole) || !AreDigits(decimals)) return false;
  return decimals.length() != kGroup || whole.length() > kGroup || whole[0] == '0';
}

/// The text of one number without blanks around it; nothing when it is blank.
std::optional<wxString> Plain(const wxString& text, LoneComma comma) {
  wxString trimmed = NarrowText(text);
  trimmed.Trim(true).Trim(false);
  if (trimmed.empty()) return std::nullopt;
  if (comma == LoneComma::Decimals && HasDecimalComma(trimmed)) trimmed.Replace(",", ".");
  return WithoutGrouping(trimmed);
}

constexpr double kLeast = std::numeric_limits<std::int32_t>::min();
constexpr double kGreatest = std::numeric_limits<std::int32_t>::max();

}  // namespace

std::optional<double> ReadNumber(const wxString& text, LoneComma comma) {
  const auto plain = Plain(text, comma);
  if (!plain) return std::nullopt;
  try {
    return GetConvert().ToDouble(*plain);
  } catch (const Error&) {
    return std::nullopt;
  }
}

wxString NumberText(double number) {
  constexpr int Digits = 15;
  if (number == 0 || !std::isfinite(number)) return "0";
  char text[40];
  const auto end = std::to_chars(text, text + sizeof text, number, std::chars_format::general, Digits).ptr;
  std::replace(text, end, 'e', 'E');
  return ToWx(std::string_view(text, static_cast<std::size_t>(end - text)));
}

std::optional<std::int32_t> RoundToWhole(double number) {
  const double whole = std::nearbyint(number);
  if (!(whole >= kLeast && whole <= kGreatest)) return std::nullopt;
  return static_cast<std::int32_t>(whole);
}

std::int32_t WholePart(double number) {
  return static_cast<std::int32_t>(std::clamp(std::floor(number), kLeast, kGreatest));
}

}  // namespace mindloft
