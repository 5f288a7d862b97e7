#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace mindloft::Corvane {

// How a document's XML is read and written, the same everywhere.

/// False when it is no XML or its elements are deeper than a document's can be.
bool ParseDocument(std::string_view xml, pugi::xml_document& document);
/// The "richtext" element of a new document.
pugi::xml_node AddDocumentRoot(pugi::xml_document& document);
std::string WriteDocument(const pugi::xml_document& document);

}  // namespace mindloft::Corvane
