#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace mindloft::Corvane {

/// A configuration document in memory: one element "UserConfiguration" with all else below it. Relative
/// expressions start there.
class ConfigXml {
 public:
  /// The greatest size of the stored text, in bytes.
  static constexpr std::size_t kMaximumSize = 1024 * 1024;
  /// The greatest length of an expression, in bytes: far beyond what names can need, and short enough that no
  /// expression takes long on a document of the greatest size.
  static constexpr std::size_t kMaximumExpression = 4096;

  /// An empty text is an empty document. ConfigurationDamaged when it is no such document.
  explicit ConfigXml(std::string_view xml);

  /// The first selected attribute; nothing when the expression selects none. InvalidExpression when it is
  /// malformed or selects something else.
  std::optional<std::string> Select(const std::string& expression) const;

  /// Sets the first selected attribute, or creates it with the elements on the way to it. InvalidExpression
  /// when it is malformed, selects something else, or has a form from which nothing can be created;
  /// TextInvalid when the text holds what XML cannot. The document is then of no further use.
  void Set(const std::string& expression, const std::string& text);

  /// The document to be stored. TextTooLong when it has outgrown the greatest size.
  std::string Text() const;

 private:
  pugi::xml_attribute Find(const std::string& expression) const;
  pugi::xml_attribute Create(const std::string& expression);

  pugi::xml_document document_;
  pugi::xml_node root_;
};

}  // namespace mindloft::Corvane
