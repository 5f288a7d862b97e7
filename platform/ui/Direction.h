#pragma once

class wxWindow;

namespace mindloft::platform {

/// Gives the parts that the desktop's toolkit has put inside the window (a tool bar's tools) the window's own
/// layout direction, where they do not take it by themselves.
void ApplyDirectionInside(wxWindow& window);

}  // namespace mindloft::platform
