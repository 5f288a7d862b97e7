#pragma once

class wxComboBox;

namespace mindloft::platform {

/// Lets the box drop down a list that scrolls, whatever the desktop's theme prefers: a menu of thousands of
/// entries takes long to build and cannot be used.
void DropDownAsList(wxComboBox& box);

}  // namespace mindloft::platform
