// Measures the window: start against a bare frame of the same toolkit, the walk of a user through a directory
// of a million users, and memory against the same walk through a small directory.
//
//   console-bench SMALL-FOLDER BIG-FOLDER
//
// Each folder holds a directory (sample.directory) and settings that log in to it automatically (config).
// Each measurement is a process of its own: console-bench --measure start|walk --directory FILE.

#include <unistd.h>
#include <wx/app.h>
#include <wx/toplevel.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <stdexcept>

#include "app/ConsoleApp.h"
#include "backend/directory/SqliteDirectory.h"
#include "bench/console/PaintClock.h"
#include "bench/console/StartClock.h"
#include "bench/console/Walk.h"

namespace mindloft::bench {
namespace {

bool measuresWalk = false;
/// So many that the medians do not hang on a few slow starts: on two processors those of a program with two
/// threads differ by ten milliseconds and more, those of a bare frame hardly.
constexpr int kStarts = 61;

/// The console as it is, watched.
class WatchedConsole : public ConsoleApp {
 public:
  /// Begins when the window has just been shown.
  int MainLoop() override {
    auto* window = dynamic_cast<wxTopLevelWindow*>(wxWindow::FindWindowByName("frmSysAdmin"));
    if (!window) throw std::runtime_error("the console did not log in");
    if (measuresWalk) {
      StopAnimations();
      CallAfter([window] { WalkAndReport(*window); });
    } else {
      ReportWhenReady(*window);
    }
    return ConsoleApp::MainLoop();
  }
};

class Verdicts {
 public:
  void Line(const std::string& what, double value, const char* unit, double limit) {
    bool holds = value <= limit;
    failed_ = failed_ || !holds;
    std::printf("%-58s %8.2f %-4s (at most %g) %s\n", what.c_str(), value, unit, limit,
                holds ? "ok" : "MISSED");
  }
  int ExitStatus() const { return failed_ ? 1 : 0; }

 private:
  bool failed_ = false;
};

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

Figures MeasureConsole(const std::string& self, const char* what, const std::string& folder) {
  setenv("XDG_CONFIG_HOME", (folder + "/config").c_str(), 1);
  setenv("XDG_STATE_HOME", (folder + "/state").c_str(), 1);
  // A measured process ends without closing its directory: the next one would read what all before it left
  // in the log beside the file, as after so many crashes.
  SqliteDirectory::Open(folder + "/sample.directory");
  return RunMeasured({self, "--measure", what, "--directory", folder + "/sample.directory"});
}

int Drive(const std::string& self, const std::string& small, const std::string& big) {
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  const std::string bare = (std::filesystem::path(self).parent_path() / "bare-frame").string();
  std::vector<double> bareTimes, smallTimes, bigTimes;
  // The first program of the toolkit on a display looks for its ways to draw, which loads the graphics
  // driver, and leaves what it found with the display.
  RunMeasured({bare});
  // What made the directories may still be on its way to the disk, for which each login's record waits.
  sync();
  // Turn by turn, so that a disturbance of the machine meets all three.
  for (int i = 0; i < kStarts; ++i) {
    bareTimes.push_back(RunMeasured({bare}).Get("ready"));
    smallTimes.push_back(MeasureConsole(self, "start", small).Get("ready"));
    bigTimes.push_back(MeasureConsole(self, "start", big).Get("ready"));
  }
  Verdicts verdicts;
  std::printf("bare frame ready after %.0f ms (median of %d)\n", Median(bareTimes), kStarts);
  verdicts.Line("start, small directory, times the bare frame", Median(smallTimes) / Median(bareTimes), "x",
                1.5);
  verdicts.Line("start, big directory, times the bare frame", Median(bigTimes) / Median(bareTimes), "x", 1.5);

  Figures smallWalk = MeasureConsole(self, "walk", small);
  Figures bigWalk = MeasureConsole(self, "walk", big);
  std::printf("walk through %.0f and %.0f users; medians of 5, from key or click to the last painted pixel\n",
              smallWalk.Get("rows"), bigWalk.Get("rows"));
  verdicts.Line("users folder selected", bigWalk.Get("users_folder"), "ms", 100);
  verdicts.Line("End key", bigWalk.Get("end_key"), "ms", 50);
  verdicts.Line("slowest keystroke of \"anna\" in the filter", bigWalk.Get("filter_anna"), "ms", 100);
  verdicts.Line("slowest keystroke of \"a b\" in the filter", bigWalk.Get("filter_two_words"), "ms", 100);
  verdicts.Line("slowest keystroke of \"zzzz\" in the filter", bigWalk.Get("filter_zzzz"), "ms", 100);
  for (const char* column : {"0", "1", "2"}) {
    verdicts.Line(std::string("click on heading ") + column, bigWalk.Get(std::string("heading_") + column),
                  "ms", 100);
    verdicts.Line(std::string("the same, filtered by \"an\", heading ") + column,
                  bigWalk.Get(std::string("heading_filtered_") + column), "ms", 100);
  }
  verdicts.Line("peak memory, big directory", bigWalk.Get("peak") / 1024, "MiB", 110);
  verdicts.Line("more than with the small directory", (bigWalk.Get("peak") - smallWalk.Get("peak")) / 1024,
                "MiB", 20);
  return verdicts.ExitStatus();
}

}  // namespace
}  // namespace mindloft::bench

wxIMPLEMENT_APP_NO_MAIN(mindloft::bench::WatchedConsole);

int main(int argc, char** argv) {
  if (argc > 2 && std::strcmp(argv[1], "--measure") == 0) {
    mindloft::bench::measuresWalk = std::strcmp(argv[2], "walk") == 0;
    std::vector<char*> rest{argv[0]};
    rest.insert(rest.end(), argv + 3, argv + argc);
    int count = static_cast<int>(rest.size());
    rest.push_back(nullptr);
    return wxEntry(count, rest.data());
  }
  if (argc != 3) {
    std::fprintf(stderr, "usage: console-bench SMALL-FOLDER BIG-FOLDER\n");
    return 2;
  }
  try {
    return mindloft::bench::Drive(std::filesystem::absolute(argv[0]).string(), argv[1], argv[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
