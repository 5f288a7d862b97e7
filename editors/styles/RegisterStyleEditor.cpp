#include "editors/styles/RegisterStyleEditor.h"

#include "controls/styles/StyleEditor.h"
#include "editors/styles/frmStyles.h"

namespace mindloft {

void RegisterStyleEditor() {
  SetStyleEditor([](wxWindow* parent) { frmStyles(parent).OpenWindow(); });
}

}  // namespace mindloft
