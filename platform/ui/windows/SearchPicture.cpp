#include "platform/ui/SearchPicture.h"

namespace mindloft::platform {

// The toolkit draws its own picture.
void SetSearchPicture(wxSearchCtrl&, const wxBitmapBundle&) {}

}  // namespace mindloft::platform
