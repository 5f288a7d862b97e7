#pragma once

#include <string>
#include <vector>

class wxTopLevelWindow;

namespace mindloft::bench {

/// Prints "ready N" (milliseconds since the starter began the process) and "peak N" (KiB of memory at the
/// most) at the first idle moment after the window was painted, then ends the process. The window has been
/// shown just now.
void ReportWhenReady(wxTopLevelWindow& window);

/// What a measured process printed: "name number" lines.
struct Figures {
  std::vector<std::pair<std::string, double>> values;
  double Get(const std::string& name) const;
};

/// Runs a program that reports, and waits for its end. Throws when it fails or says nothing.
Figures RunMeasured(const std::vector<std::string>& command);

/// The memory of this process at the most so far, in KiB.
long PeakKiB();

}  // namespace mindloft::bench
