#pragma once

#include <wx/xrc/xmlres.h>

namespace mindloft {

/// Makes `<object class="ctExplorer" name="...">` of a form's resource an explorer. Parameters: `tree` (1:
/// with a tree, the default; 0: a list only).
class ExplorerXmlHandler : public wxXmlResourceHandler {
 public:
  ExplorerXmlHandler();
  wxObject* DoCreateResource() override;
  bool CanHandle(wxXmlNode* node) override;
};

}  // namespace mindloft
