#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "backend/directory/Records.h"

namespace mindloft::Corvane {

/// One value of the configuration document; conversions throw TypeMismatch or Overflow.
class ConfigValue {
 public:
  explicit ConfigValue(std::string text) : text_(std::move(text)) {}
  const std::string& AsString() const { return text_; }
  /// "True", "False" (any case) or a number; 0 is false.
  bool AsBoolean() const;
  std::int16_t AsInteger() const;
  std::int32_t AsLong() const;
  float AsSingle() const;
  /// An ISO 8601 date or date and time, taken as it stands (no time zone): milliseconds since 1970-01-01.
  Timestamp AsDate() const;

 private:
  std::string text_;
};

}  // namespace mindloft::Corvane
