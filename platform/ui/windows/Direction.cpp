#include "platform/ui/Direction.h"

#include <wx/sysopt.h>

namespace mindloft::platform {

void ApplyDirectionInside(wxWindow&) {}

// The toolkit draws them into a picture that is not mirrored, which turns the title's letters round; the
// system's own drawing is right.
void DrawBoxesInTheirDirection() {
  wxSystemOptions::SetOption("msw.staticbox.optimized-paint", 0);
}

}  // namespace mindloft::platform
