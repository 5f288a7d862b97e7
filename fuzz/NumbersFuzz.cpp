#include <cmath>
#include <string_view>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"
#include "controls/numbers/FilterKey.h"
#include "controls/numbers/NumberPicture.h"
#include "controls/numbers/NumberText.h"
#include "fuzz/Fuzz.h"
#include "platform/SystemLocale.h"

using namespace mindloft;
using fuzz::Require;

namespace {

/// A picture of digit places only, at least one of them in the whole part always shown.
bool IsPlain(std::string_view picture) {
  const auto point = picture.find('.');
  const auto whole = picture.substr(0, point);
  const auto decimals = point == std::string_view::npos ? std::string_view() : picture.substr(point + 1);
  return whole.find('0') != std::string_view::npos && whole.front() != ',' &&
         whole.find_first_not_of("0#,") == std::string_view::npos &&
         decimals.find_first_not_of("0#") == std::string_view::npos;
}

void FormatAndRead(const NumberPicture& picture, double number, bool plain) {
  const wxString text = picture.Format(number);
  const auto read = picture.Read(text);
  constexpr double SurelyExact = 1e12;
  if (!plain || std::fabs(number) > SurelyExact) return;
  Require(read.has_value());
  Require(picture.Format(*read) == text);
}

}  // namespace

// A picture in the first line, a number or a typed text below it.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto [first, rest] = fuzz::FirstLine(fuzz::TextOf(data, size));
  const platform::FakeSystemLocale locale(size % 2 ? 1041 : 1033);
  const wxString typed = ToWx(rest);
  const wxString permitted = "1234567890\b,.-";
  for (const wxUniChar each : typed) {
    int key = static_cast<int>(each.GetValue());
    FilterKey(permitted, key, true);
    Require(key == 0 || permitted.find(wxUniChar(static_cast<unsigned int>(key))) != wxString::npos);
  }
  try {
    const NumberPicture picture(ToWx(first));
    const bool plain = IsPlain(first);
    if (const auto number = picture.Read(typed)) {
      Require(std::isfinite(*number));
      WholePart(*number);
      RoundToWhole(*number);
      FormatAndRead(picture, *number, plain);
    }
    for (const double number : {0.0, -0.5, 2147483647.0, 1e308, 4.9e-324})
      FormatAndRead(picture, number, plain);
  } catch (const Error&) {
  }
  if (const auto number = ReadNumber(typed)) Require(ReadNumber(NumberText(*number)).has_value());
  return 0;
}
