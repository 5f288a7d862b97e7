#include "platform/Shell.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "platform/linux/Descriptor.h"

namespace mindloft::platform {
namespace {

/// In the new process: becomes the opener, in a session of its own so that it outlives this program. Tells
/// its failure through the pipe, which closes by itself when the opener runs.
[[noreturn]] void Become(const char* target, int report) {
  setsid();
  if (int null = open("/dev/null", O_RDWR); null >= 0) {
    dup2(null, STDIN_FILENO);
    dup2(null, STDOUT_FILENO);
    dup2(null, STDERR_FILENO);
  }
  execlp("xdg-open", "xdg-open", target, static_cast<char*>(nullptr));
  int failure = errno;
  [[maybe_unused]] auto written = write(report, &failure, sizeof failure);
  _exit(127);
}

}  // namespace

bool OpenInSystemShell(const std::string& target) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return false;
  Descriptor reading(ends[0]);
  auto child = [&] {
    Descriptor writing(ends[1]);
    auto first = fork();
    if (first == 0) {
      // The grandchild is nobody's to wait for.
      auto second = fork();
      if (second == 0) Become(target.c_str(), writing.Get());
      _exit(second < 0 ? 1 : 0);
    }
    return first;
  }();
  if (child < 0) return false;
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  int failure = 0;
  ssize_t count;
  while ((count = read(reading.Get(), &failure, sizeof failure)) < 0 && errno == EINTR) {
  }
  return count == 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace mindloft::platform
