#include "controls/RegisterControls.h"

#include "controls/explorer/ExplorerXmlHandler.h"
#include "core/forms/Form.h"

namespace mindloft {

void RegisterControls() {
  static const bool registered = [] {
    RegisterFormHandler(new ExplorerXmlHandler);
    return true;
  }();
  static_cast<void>(registered);
}

}  // namespace mindloft
