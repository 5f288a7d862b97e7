#pragma once

#include <string>
#include <vector>

class wxTopLevelWindow;

namespace mindloft::bench {

/// The walk of a user through the main window: users folder, End, filter, headings. Prints "name
/// milliseconds" lines (the slowest of the repetitions' medians) and "peak N", and ends the process. Keys and
/// clicks go through the display.
void WalkAndReport(wxTopLevelWindow& window);

}  // namespace mindloft::bench
