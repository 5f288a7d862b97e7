#include "controls/bag/PropertyText.h"

#include <charconv>
#include <limits>
#include <string>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"

namespace mindloft {
namespace {

[[noreturn]] void ThrowMismatch(const wxString& text, const char* type) {
  throw Error(ErrorNumber::TypeMismatch, "\"" + ToUtf8(text) + "\" is no " + type);
}

/// All of the text as a number of that base, whatever the language of the system.
template <typename Number>
Number ParseWhole(const wxString& text, int base, const wxString& digits, const char* type) {
  const std::string utf8 = ToUtf8(digits);
  Number value{};
  const auto [end, problem] = std::from_chars(utf8.data(), utf8.data() + utf8.size(), value, base);
  if (problem == std::errc::result_out_of_range)
    throw Error(ErrorNumber::Overflow, "\"" + ToUtf8(text) + "\" is too large for a " + type);
  if (problem != std::errc() || end != utf8.data() + utf8.size()) ThrowMismatch(text, type);
  return value;
}

constexpr const char* kShort = "16-bit integer";
constexpr const char* kLong = "32-bit integer";
constexpr const char* kColour = "colour";

}  // namespace

wxString PropertyText<bool>::Format(bool value) {
  return value ? "True" : "False";
}

bool PropertyText<bool>::Parse(const wxString& text) {
  if (text.IsSameAs("True", false) || text == "1" || text == "-1") return true;
  if (text.IsSameAs("False", false) || text == "0") return false;
  ThrowMismatch(text, "truth value");
}

wxString PropertyText<std::int16_t>::Format(std::int16_t value) {
  return wxString::Format("%d", static_cast<int>(value));
}

std::int16_t PropertyText<std::int16_t>::Parse(const wxString& text) {
  return ParseWhole<std::int16_t>(text, 10, text, kShort);
}

wxString PropertyText<std::int32_t>::Format(std::int32_t value) {
  return wxString::Format("%d", value);
}

std::int32_t PropertyText<std::int32_t>::Parse(const wxString& text) {
  return ParseWhole<std::int32_t>(text, 10, text, kLong);
}

wxString PropertyText<ControlColour>::Format(ControlColour value) {
  return wxString::Format("&H%08X", value.Value());
}

ControlColour PropertyText<ControlColour>::Parse(const wxString& text) {
  wxString digits;
  if (text.StartsWith("#", &digits)) {
    const wxColour colour(text);
    if (digits.length() != 6 || !colour.IsOk()) ThrowMismatch(text, kColour);
    return ControlColour(colour);
  }
  if (!text.StartsWith("&H", &digits)) ThrowMismatch(text, kColour);
  return ControlColour(ParseWhole<std::uint32_t>(text, 16, digits, kColour));
}

}  // namespace mindloft
