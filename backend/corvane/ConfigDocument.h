#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "backend/corvane/Session.h"

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

/// The logged-in user's configuration document: XML, addressed by XPath expressions that end in an attribute.
class ConfigDocument {
 public:
  explicit ConfigDocument(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  /// Writes the attribute that the expression selects, creating the elements and the attribute that it needs,
  /// and stores the document. InvalidExpression when the expression is malformed or cannot be created from.
  void SetValue(const std::string& expression, const std::string& text);
  /// The attribute's value; the default when nothing is selected. InvalidExpression when malformed.
  ConfigValue Select(const std::string& expression, const std::string& defaultText) const;

 private:
  std::shared_ptr<Session> session_;
};

}  // namespace mindloft::Corvane
