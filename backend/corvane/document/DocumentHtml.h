#pragma once

#include <string>
#include <string_view>

#include "backend/corvane/document/SanitizeDocument.h"

namespace mindloft::Corvane {

/// A stored text as HTML in UTF-8, complete with its frame: paragraphs and headings, fonts, colours,
/// alignment, indents, lists and tables. Well-formed XML too.
std::string HtmlOfDocument(std::string_view stored);

/// The safe part of an HTML text as a document: what HtmlOfDocument writes, and what other programs write for
/// the same. Scripts, styles sheets, pictures, links' targets and forms stay out; what is badly nested is
/// read as well as can be. Never throws for what the text holds.
SafeDocument DocumentOfHtml(std::string_view html);

}  // namespace mindloft::Corvane
