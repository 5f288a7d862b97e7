#include "platform/ui/MeasuringDC.h"

#include <wx/dcclient.h>

namespace mindloft::platform {

std::unique_ptr<wxDC> MakeMeasuringDC(wxWindow& window) {
  return std::make_unique<wxClientDC>(&window);
}

}  // namespace mindloft::platform
