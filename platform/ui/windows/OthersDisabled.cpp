#include "platform/ui/OthersDisabled.h"

namespace mindloft::platform {

// The system's windows remember it.
class OthersDisabled::KeptFocus {};

OthersDisabled::OthersDisabled(wxWindow* exception)
    : disabler_(std::make_unique<wxWindowDisabler>(exception)) {}

OthersDisabled::~OthersDisabled() = default;

}  // namespace mindloft::platform
