#include "controls/ControlHandlers.h"

#include "controls/ExplorerXmlHandler.h"

namespace mindloft {

void AddControlHandlers(wxXmlResource& resource) {
  resource.AddHandler(new ExplorerXmlHandler);
}

}  // namespace mindloft
