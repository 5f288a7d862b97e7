#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mindloft::Corvane {

/// A start tag, an end tag or the text between two tags.
struct HtmlToken {
  enum class Kind { Start, End, Text };
  Kind kind = Kind::Text;
  std::string name;  ///< of a tag, in lower case
  std::string text;  ///< its references replaced
  std::vector<std::pair<std::string, std::string>> attributes;

  /// Empty when it has none.
  std::string Attribute(std::string_view wanted) const;
};

/// Takes an HTML text apart, however badly it is written: a tag that does not end is text, comments and
/// declarations are nothing, and so is what stands in scripts, styles and the like.
class HtmlTokens {
 public:
  /// The text outlives this.
  explicit HtmlTokens(std::string_view html) : rest_(html) {}
  /// False at the end.
  bool Next(HtmlToken& token);

 private:
  bool ReadTag(HtmlToken& token);
  void ReadAttributes(std::string_view tag, HtmlToken& token) const;
  void SkipContent(const std::string& name);

  std::string_view rest_;
};

}  // namespace mindloft::Corvane
