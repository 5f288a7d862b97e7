#pragma once

#include <memory>
#include <string>
#include <utility>

#include "backend/corvane/ConfigValue.h"
#include "backend/corvane/Session.h"

namespace mindloft::Corvane {

/// The logged-in user's configuration document: XML, addressed by XPath expressions that end in an attribute.
class ConfigDocument {
 public:
  explicit ConfigDocument(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  /// Writes the attribute that the expression selects, creating the elements and the attribute that it needs,
  /// and stores the document. InvalidExpression when the expression is malformed or cannot be created from,
  /// TextInvalid for what XML cannot hold, TextTooLong when the document would outgrow 1 MiB,
  /// ConfigurationDamaged when the stored document is damaged; nothing is stored then.
  void SetValue(const std::string& expression, const std::string& text);
  /// The attribute's value; the default when nothing is selected. InvalidExpression when malformed.
  ConfigValue Select(const std::string& expression, const std::string& defaultText) const;

 private:
  void Store(const std::string& expression, const std::string& text);

  std::shared_ptr<Session> session_;
};

}  // namespace mindloft::Corvane
