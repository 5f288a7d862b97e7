#pragma once

#include <wx/string.h>

#include <cstdint>
#include <optional>

namespace mindloft {

// Numbers as people type them into the numeric controls: "-1,234.50". Whatever the system's language, "."
// begins the decimals and "," groups digits of the whole part (anywhere after its first digit); blanks around
// the number do not count. "1.", ".5" and "1e3" are numbers too.

/// What a comma is that cannot group digits: the only one of a number without a point, and no group of three
/// digits behind it ("29,7", "1234,567", "0,125").
enum class LoneComma {
  Groups,   ///< it does not count
  Decimals  ///< many languages begin the decimals with it
};

/// Nothing for a text that is no number, also for a blank one, and for a number too large for the type.
std::optional<double> ReadNumber(const wxString& text, LoneComma comma = LoneComma::Groups);

/// As the plain text of a number: up to 15 digits, without grouping; "1E+20" when it is longer.
wxString NumberText(double number);

/// Rounded to the nearest whole number, halves to the even one; nothing when it does not fit 32 bits.
std::optional<std::int32_t> RoundToWhole(double number);

/// The whole number not above it, or the nearest that fits 32 bits.
std::int32_t WholePart(double number);

}  // namespace mindloft
