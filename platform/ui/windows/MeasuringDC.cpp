#include "platform/ui/MeasuringDC.h"

#include <wx/dcclient.h>

namespace mindloft::platform {

std::unique_ptr<wxDC> MakeMeasuringDC(wxWindow& window) {
  return std::make_unique<wxClientDC>(&window);
}

std::unique_ptr<wxDC> MakeMeasuringDC(wxDC&) {
  return nullptr;
}

}  // namespace mindloft::platform
