#include "controls/numbers/RoundedNumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace mindloft {
namespace {

constexpr int kDigits = 15;

/// Adds one to the last digit; a carry out of the first makes a digit more.
void Increase(std::string& digits) {
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
    if (*digit != '9') {
      ++*digit;
      return;
    }
    *digit = '0';
  }
  digits.insert(0, 1, '1');
}

}  // namespace

RoundedNumber::RoundedNumber(double number, int shift, std::size_t decimals) : fraction(decimals, '0') {
  if (number == 0 || !std::isfinite(number)) return;
  // "d.dddddddddddddde-xx"
  char text[40];
  const auto end = std::to_chars(text, text + sizeof text - 1, std::fabs(number),
                                 std::chars_format::scientific, kDigits - 1)
                       .ptr;
  *end = 0;
  std::string digits(1, text[0]);
  digits.append(text + 2, kDigits - 1);
  const long point = std::strtol(std::strchr(text, 'e') + 1, nullptr, 10) + 1 + shift;
  if (point < 0 && static_cast<std::size_t>(-point) > decimals) return;

  // From here on the digits begin left of the point, and one stands behind the last that is kept.
  if (point < 0) digits.insert(0, static_cast<std::size_t>(-point), '0');
  const std::size_t kept = static_cast<std::size_t>(std::max(point, 0L)) + decimals;
  digits.resize(std::max(digits.size(), kept + 1), '0');
  const bool up = digits[kept] >= '5';
  digits.resize(kept);
  if (up) Increase(digits);
  whole = digits.substr(0, digits.size() - decimals);
  fraction = digits.substr(digits.size() - decimals);
  whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
}

bool RoundedNumber::IsZero() const {
  return whole.empty() && fraction.find_first_not_of('0') == std::string::npos;
}

}  // namespace mindloft
