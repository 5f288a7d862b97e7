#include "backend/corvane/document/DocumentXml.h"

#include <sstream>

#include "backend/corvane/document/DocumentLimits.h"

namespace mindloft::Corvane {
namespace {

class DepthCheck : public pugi::xml_tree_walker {
 public:
  bool for_each(pugi::xml_node&) override { return depth() <= kMostElementDepth; }
};

}  // namespace

bool ParseDocument(std::string_view xml, pugi::xml_document& document) {
  constexpr unsigned kParse =
      pugi::parse_cdata | pugi::parse_escapes | pugi::parse_eol | pugi::parse_ws_pcdata;
  DepthCheck check;
  return document.load_buffer(xml.data(), xml.size(), kParse, pugi::encoding_utf8) &&
         document.traverse(check);
}

pugi::xml_node AddDocumentRoot(pugi::xml_document& document) {
  auto declaration = document.append_child(pugi::node_declaration);
  declaration.append_attribute("version") = "1.0";
  declaration.append_attribute("encoding") = "UTF-8";
  auto root = document.append_child("richtext");
  root.append_attribute("version") = "1.0.0.0";
  root.append_attribute("xmlns") = "http://www.wxwidgets.org";
  return root;
}

std::string WriteDocument(const pugi::xml_document& document) {
  std::ostringstream stream;
  document.save(stream, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
  return stream.str();
}

}  // namespace mindloft::Corvane
