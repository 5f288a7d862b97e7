#include "bench/console/StartClock.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <wx/app.h>
#include <wx/toplevel.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "bench/console/PaintClock.h"

extern char** environ;

namespace mindloft::bench {
namespace {

constexpr const char* kBegin = "MINDLOFT_BENCH_BEGIN";

}  // namespace

long PeakKiB() {
  // getrusage would count what the starter held at the fork.
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) return std::atol(line.c_str() + 6);
  }
  throw std::runtime_error("the system does not tell the peak of the memory");
}

void ReportWhenReady(wxTopLevelWindow& window) {
  // Its first frame is the window's first picture.
  auto clock = std::make_shared<PaintClock>(window);
  wxTheApp->Bind(wxEVT_IDLE, [clock](wxIdleEvent& event) {
    event.Skip();

    if (!clock->HasPainted()) return;

    const double now = NowMs();
    const char* begin = std::getenv(kBegin);
    std::printf("ready %.2f\npeak %ld\n", now - (begin ? std::atof(begin) : 0), PeakKiB());
    std::fflush(stdout);
    _exit(0);
  });
}

double Figures::Get(const std::string& name) const {
  for (const auto& [key, value] : values) {
    if (key == name) return value;
  }
  throw std::runtime_error("no figure '" + name + "' was reported");
}

Figures RunMeasured(const std::vector<std::string>& command) {
  int out[2];
  if (pipe2(out, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  char begin[64];
  std::snprintf(begin, sizeof begin, "%.3f", NowMs());
  setenv(kBegin, begin, 1);

  std::vector<char*> arguments;
  for (const auto& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
  posix_spawn_file_actions_addclose(&actions, out[0]);
  pid_t child = 0;
  int failed = posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(out[1]);
  if (failed != 0) throw std::runtime_error("cannot start " + command[0]);

  // The end of the process counts, not the end of the pipe: services that the toolkit starts may keep it
  // open. What is printed fits into the pipe.
  int status = 0;
  waitpid(child, &status, 0);
  fcntl(out[0], F_SETFL, O_NONBLOCK);
  std::string text;
  char buffer[4096];
  for (ssize_t got = 0; (got = read(out[0], buffer, sizeof buffer)) > 0;)
    text.append(buffer, static_cast<std::size_t>(got));
  close(out[0]);
  if (status != 0) throw std::runtime_error(command[0] + " failed: " + text);

  Figures figures;
  std::istringstream lines(text);
  for (std::string name; lines >> name;) {
    double value = 0;
    lines >> value;
    figures.values.emplace_back(name, value);
  }
  return figures;
}

}  // namespace mindloft::bench
