#include "platform/ui/Toolkit.h"

#include <wx/sysopt.h>

#include "platform/ui/AccessKeys.h"

namespace mindloft::platform {

void MendToolkit() {
  LeadAccessKeys();
  // The toolkit draws group boxes into a picture that is not mirrored, which turns the title's letters round;
  // the system's own drawing is right.
  wxSystemOptions::SetOption("msw.staticbox.optimized-paint", 0);
}

}  // namespace mindloft::platform
