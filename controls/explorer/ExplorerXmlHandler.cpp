#include "controls/explorer/ExplorerXmlHandler.h"

#include <memory>

#include "controls/explorer/ctExplorer.h"

namespace mindloft {

ExplorerXmlHandler::ExplorerXmlHandler() {
  AddWindowStyles();
}

wxObject* ExplorerXmlHandler::DoCreateResource() {
  // A form may hand in an explorer of its own that is not created yet.
  auto* explorer = m_instance ? dynamic_cast<ctExplorer*>(m_instance) : new ctExplorer;
  if (!explorer) return nullptr;
  explorer->Create(m_parentAsWindow, GetName(), GetBool("tree", true));
  explorer->SetId(GetID());
  SetupWindow(explorer);
  return explorer;
}

bool ExplorerXmlHandler::CanHandle(wxXmlNode* node) {
  return IsOfClass(node, "ctExplorer");
}

}  // namespace mindloft
