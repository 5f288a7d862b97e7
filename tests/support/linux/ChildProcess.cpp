#include "tests/support/ChildProcess.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>

namespace mindloft::test {

struct ChildProcess::Handles {
  pid_t process = -1;
  int output = -1;
  int status = -1;

  /// Takes the status once the process has ended; false while it runs.
  bool Collect(int options) {
    int ended = 0;
    if (process > 0 && waitpid(process, &ended, options) == process) {
      process = -1;
      status = WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;
    }
    return process <= 0;
  }
};

ChildProcess::ChildProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments)
    : handles_(std::make_unique<Handles>()) {
  std::string path = program.string();
  std::vector<std::string> texts = arguments;
  std::vector<char*> argv{path.data()};
  for (auto& text : texts) argv.push_back(text.data());
  argv.push_back(nullptr);
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("pipe");
  pid_t process = fork();
  if (process == 0) {
    dup2(ends[1], STDOUT_FILENO);
    close(ends[0]);
    close(ends[1]);
    execv(path.c_str(), argv.data());
    _exit(127);
  }
  close(ends[1]);
  handles_->output = ends[0];
  handles_->process = process;
  if (process < 0) throw std::runtime_error("fork");
}

ChildProcess::~ChildProcess() {
  Kill();
  Wait();
  close(handles_->output);
}

std::string ChildProcess::ReadSome() {
  char bytes[4096];
  ssize_t count = 0;
  do {
    count = read(handles_->output, bytes, sizeof bytes);
  } while (count < 0 && errno == EINTR);
  return count > 0 ? std::string(bytes, static_cast<std::size_t>(count)) : std::string();
}

void ChildProcess::Kill() {
  if (handles_->process > 0) kill(handles_->process, SIGKILL);
}

bool ChildProcess::HasEnded() {
  return handles_->Collect(WNOHANG);
}

int ChildProcess::Wait() {
  handles_->Collect(0);
  return handles_->status;
}

}  // namespace mindloft::test
