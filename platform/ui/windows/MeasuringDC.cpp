#include "platform/ui/MeasuringDC.h"

namespace mindloft::platform {

std::unique_ptr<wxDC> MakeMeasuringDC(wxDC&) {
  return nullptr;
}

}  // namespace mindloft::platform
