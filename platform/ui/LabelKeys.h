#pragma once

class wxWindow;

namespace mindloft::platform {

/// Lets the access key of a static label take the user to the control behind it, whatever that and the one
/// with the keyboard are made of: the desktops do so only for controls that are one window. The labels of all
/// windows, present and future, are led. Calling it again changes nothing.
void LeadLabelKeys();

/// The first control behind a label that takes keys; nullptr: none.
wxWindow* ControlBehind(const wxWindow& label);

}  // namespace mindloft::platform
