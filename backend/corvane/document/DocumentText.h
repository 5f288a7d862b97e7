#pragma once

#include <string>
#include <string_view>

namespace mindloft::Corvane {

// A stored text is a formatted document (the XML of the rich-text component, which begins with a "richtext"
// element) or, as descriptions were before, a plain text. All in UTF-8; nothing here throws.

/// Whether the stored text claims to be a formatted document; it may be a broken one all the same.
bool IsFormattedDocument(std::string_view stored);

/// What a reader sees of a stored text, without its formats: paragraphs end in a line break, cells of a row
/// are parted by tabs. Of a broken document what is left of its texts. For lists and for searching.
std::string PlainTextOf(std::string_view stored);

/// A formatted document with a paragraph for each line of the text.
std::string DocumentOfPlainText(std::string_view text);

}  // namespace mindloft::Corvane
