#pragma once

namespace mindloft::platform {

/// Lets the access key of a static label take the user to the control behind it, whatever that is made of.
/// Where the desktop does so only for controls that are one widget, the labels of all windows, present and
/// future, are led. Calling it again changes nothing.
void LeadLabelKeys();

}  // namespace mindloft::platform
