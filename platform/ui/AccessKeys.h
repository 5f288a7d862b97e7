#pragma once

class wxWindow;

namespace mindloft::platform {

/// Lets access keys work where the desktop leaves out controls of several windows: a label's takes the user
/// to the control behind it whatever that is made of, and those of labels and buttons work wherever in the
/// form the keyboard is. Holds for all windows, present and future; calling it again changes nothing.
void LeadAccessKeys();

/// The first control behind a label that takes keys; nullptr: none.
wxWindow* ControlBehind(const wxWindow& label);

}  // namespace mindloft::platform
