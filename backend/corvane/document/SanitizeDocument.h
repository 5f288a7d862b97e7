#pragma once

#include <string>
#include <string_view>

namespace mindloft::Corvane {

/// What became of a stored text.
enum class DocumentState {
  Whole,      ///< nothing of it was unknown
  PlainText,  ///< it was no document; its lines are the paragraphs now
  Reduced,    ///< something unknown or forbidden was left out
  Broken,     ///< no document could be made of it; what was left of its texts is plain paragraphs now
  TooLarge,   ///< more than a document may hold; its beginning is plain paragraphs now
};

/// A document that may be shown: only the elements, attributes and values that the console's editor makes.
struct SafeDocument {
  std::string xml;
  DocumentState state = DocumentState::Whole;
};

/// Makes a stored text safe, whoever stored it: text, tables, lists and formats stay; pictures, links,
/// fields, style sheets, foreign elements and values out of bounds do not. What comes out goes in unchanged.
/// Never throws for what the text holds.
SafeDocument SanitizeDocument(std::string_view stored);

}  // namespace mindloft::Corvane
