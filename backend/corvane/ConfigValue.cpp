#include "backend/corvane/ConfigValue.h"

#include <charconv>
#include <chrono>
#include <cmath>
#include <limits>
#include <string_view>

#include "backend/corvane/Trimmed.h"
#include "backend/errors/Error.h"

namespace mindloft::Corvane {
namespace {

[[noreturn]] void ThrowMismatch(const std::string& text) {
  throw Error(ErrorNumber::TypeMismatch, "configuration value \"" + text.substr(0, 100) + '"');
}

[[noreturn]] void ThrowOverflow(const std::string& text) {
  throw Error(ErrorNumber::Overflow, "configuration value \"" + text.substr(0, 100) + '"');
}

/// The whole text as a number; "nan" and "inf" are none. The error is the one of the conversion: a number
/// that is out of the type's range keeps result_out_of_range.
template <typename Number>
std::errc Parse(std::string_view digits, Number& number) {
  if (!digits.empty() && digits.front() == '+') {
    digits.remove_prefix(1);
    if (!digits.empty() && digits.front() == '-') return std::errc::invalid_argument;
  }
  if (digits.find_first_not_of("0123456789+-.eE") != std::string_view::npos)
    return std::errc::invalid_argument;
  const auto end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number);
  return stop == end ? error : std::errc::invalid_argument;
}

double ToNumber(const std::string& text) {
  double number = 0;
  const auto error = Parse(Trimmed(text), number);
  if (error == std::errc::invalid_argument) ThrowMismatch(text);
  // Out of range leaves 0, which is right for what is too small: only that has a negative exponent.
  const bool tiny = text.find("e-") != std::string::npos || text.find("E-") != std::string::npos;
  if (error == std::errc::result_out_of_range && !tiny) ThrowOverflow(text);
  return number;
}

template <typename Integer>
Integer ToWhole(const std::string& text) {
  const double number = std::nearbyint(ToNumber(text));
  if (number < std::numeric_limits<Integer>::min() || number > std::numeric_limits<Integer>::max()) {
    ThrowOverflow(text);
  }
  return static_cast<Integer>(number);
}

bool IsWord(std::string_view text, std::string_view lower) {
  if (text.size() != lower.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) != lower[i]) return false;
  }
  return true;
}

/// Reads digits and separators from the front of a date.
class DateReader {
 public:
  explicit DateReader(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }
  bool Skip(char c) {
    if (rest_.empty() || rest_.front() != c) return false;
    rest_.remove_prefix(1);
    return true;
  }
  bool Digits(std::size_t count, int& number) {
    if (rest_.size() < count ||
        rest_.substr(0, count).find_first_not_of("0123456789") != std::string_view::npos) {
      return false;
    }
    std::from_chars(rest_.data(), rest_.data() + count, number);
    rest_.remove_prefix(count);
    return true;
  }

 private:
  std::string_view rest_;
};

}  // namespace

bool ConfigValue::AsBoolean() const {
  const auto text = Trimmed(text_);
  if (IsWord(text, "true")) return true;
  if (IsWord(text, "false")) return false;
  return ToNumber(text_) != 0;
}

std::int16_t ConfigValue::AsInteger() const {
  return ToWhole<std::int16_t>(text_);
}

std::int32_t ConfigValue::AsLong() const {
  return ToWhole<std::int32_t>(text_);
}

float ConfigValue::AsSingle() const {
  float number = 0;
  const auto error = Parse(Trimmed(text_), number);
  if (error == std::errc::invalid_argument) ThrowMismatch(text_);
  if (error == std::errc::result_out_of_range) {
    // Too large or too small for the type; the latter is 0.
    if (std::abs(ToNumber(text_)) > 1) ThrowOverflow(text_);
    return 0;
  }
  return number;
}

Timestamp ConfigValue::AsDate() const {
  DateReader reader(Trimmed(text_));
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, millisecond = 0;
  bool good = reader.Digits(4, year) && reader.Skip('-') && reader.Digits(2, month) && reader.Skip('-') &&
              reader.Digits(2, day);
  if (good && (reader.Skip('T') || reader.Skip(' '))) {
    good = reader.Digits(2, hour) && reader.Skip(':') && reader.Digits(2, minute);
    if (good && reader.Skip(':')) good = reader.Digits(2, second);
    if (good && reader.Skip('.')) good = reader.Digits(3, millisecond);
  }
  const std::chrono::year_month_day date{std::chrono::year(year),
                                         std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day))};
  if (!good || !reader.AtEnd() || !date.ok() || hour > 23 || minute > 59 || second > 59) ThrowMismatch(text_);
  const std::chrono::milliseconds time =
      std::chrono::sys_days(date).time_since_epoch() + std::chrono::hours(hour) +
      std::chrono::minutes(minute) + std::chrono::seconds(second) + std::chrono::milliseconds(millisecond);
  return time.count();
}

}  // namespace mindloft::Corvane
