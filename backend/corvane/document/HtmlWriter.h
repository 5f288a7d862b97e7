#pragma once

#include <pugixml.hpp>

namespace mindloft::Corvane {

/// Writes the paragraphs of a clean document's box (its main text, a cell) as HTML below `body`.
void WriteHtml(const pugi::xml_node& box, pugi::xml_node body);

}  // namespace mindloft::Corvane
