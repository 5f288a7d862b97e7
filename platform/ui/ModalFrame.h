#pragma once

class wxTopLevelWindow;

namespace mindloft::platform {

/// Before the frame is shown: lets it take the keyboard and the mouse above a modal dialog, and keep them
/// until it goes. Where the toolkit's own disabling of the other windows is enough, nothing happens.
void ShowAboveModal(wxTopLevelWindow& frame);

}  // namespace mindloft::platform
