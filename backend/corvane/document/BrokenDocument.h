#pragma once

#include <string>
#include <string_view>

namespace mindloft::Corvane {

/// The texts of a document that is no XML (any more): what stands between its tags, a line for each
/// paragraph.
std::string TextOfBrokenDocument(std::string_view markup);

/// Replaces the character references of XML and HTML (&amp; &#233; &nbsp;); unknown ones stay.
std::string WithoutReferences(std::string_view text);

}  // namespace mindloft::Corvane
