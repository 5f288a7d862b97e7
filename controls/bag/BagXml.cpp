#include "controls/bag/BagXml.h"

#include <algorithm>
#include <array>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"

namespace mindloft {
namespace {

/// What the toolkit reads for every window.
constexpr std::array kWindowParameters{"pos",     "size",    "style",   "exstyle", "variant", "tooltip",
                                       "font",    "ownfont", "fg",      "ownfg",   "bg",      "ownbg",
                                       "enabled", "hidden",  "focused", "help",    "minsize", "maxsize"};

wxString ContentOf(const wxXmlNode& node) {
  wxString content;
  for (const auto* part = node.GetChildren(); part; part = part->GetNext()) {
    if (part->GetType() == wxXML_TEXT_NODE || part->GetType() == wxXML_CDATA_SECTION_NODE)
      content += part->GetContent();
  }
  return content;
}

/// Blanks at the edges survive only in a CDATA section. The mark that ends one is put into two of them.
void AddContent(wxXmlNode& node, const wxString& text) {
  constexpr std::size_t PartOfEndMark = 2;
  for (std::size_t start = 0; start < text.length();) {
    std::size_t end = text.find("]]>", start);
    end = end == wxString::npos ? text.length() : end + PartOfEndMark;
    node.AddChild(new wxXmlNode(wxXML_CDATA_SECTION_NODE, wxString(), text.substr(start, end - start)));
    start = end;
  }
}

}  // namespace

PropertyBag ReadBag(const wxXmlNode& control) {
  PropertyBag bag;
  for (const auto* node = control.GetChildren(); node; node = node->GetNext()) {
    if (node->GetType() != wxXML_ELEMENT_NODE) continue;
    const wxString& name = node->GetName();
    if (name[0] >= 'A' && name[0] <= 'Z') {
      if (bag.Find(name)) throw Error(ErrorNumber::Unexpected, ToUtf8(name) + " stands twice");
      bag.Write(name, ContentOf(*node));
    } else if (std::find(kWindowParameters.begin(), kWindowParameters.end(), name) ==
               kWindowParameters.end()) {
      throw Error(ErrorNumber::Unexpected, "there is no parameter \"" + ToUtf8(name) + "\"");
    }
  }
  return bag;
}

void WriteBag(const PropertyBag& bag, wxXmlNode& control) {
  for (const auto& [name, text] : bag.Entries()) {
    auto* node = new wxXmlNode(wxXML_ELEMENT_NODE, name);
    AddContent(*node, text);
    control.AddChild(node);
  }
}

}  // namespace mindloft
