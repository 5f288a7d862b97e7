#include "tests/support/ChildProcess.h"

#include <windows.h>

#include <stdexcept>

namespace mindloft::test {

namespace {

constexpr UINT kKilled = 0xdead;

/// Starts the program of the command line. Wine loses one of some hundred new processes on its way, and says
/// that an error has occurred inside of it.
bool StartProcess(std::wstring command, STARTUPINFOW& startup, PROCESS_INFORMATION& process) {
  for (int tries = 3; tries > 0; --tries) {
    if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr,
                       &startup, &process))
      return true;
    if (GetLastError() != ERROR_INTERNAL_ERROR) break;
  }
  return false;
}

}  // namespace

struct ChildProcess::Handles {
  HANDLE process = nullptr;
  HANDLE output = nullptr;
  int status = -1;
};

ChildProcess::ChildProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments)
    : handles_(std::make_unique<Handles>()) {
  std::wstring command = L"\"" + program.wstring() + L"\"";
  for (const auto& argument : arguments) {
    std::u8string utf8(argument.begin(), argument.end());
    command += L" \"" + std::filesystem::path(utf8).wstring() + L"\"";
  }
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE write = nullptr;
  if (!CreatePipe(&handles_->output, &write, &inherited, 0)) throw std::runtime_error("CreatePipe");
  SetHandleInformation(handles_->output, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = write;
  startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION process{};
  const bool started = StartProcess(command, startup, process);
  CloseHandle(write);
  if (!started) throw std::runtime_error("CreateProcess");
  CloseHandle(process.hThread);
  handles_->process = process.hProcess;
}

ChildProcess::~ChildProcess() {
  Kill();
  Wait();
  CloseHandle(handles_->output);
}

std::string ChildProcess::ReadSome() {
  char bytes[4096];
  DWORD count = 0;
  if (!ReadFile(handles_->output, bytes, sizeof bytes, &count, nullptr)) return {};
  return std::string(bytes, count);
}

void ChildProcess::Kill() {
  if (handles_->process) TerminateProcess(handles_->process, kKilled);
}

bool ChildProcess::HasEnded() {
  return !handles_->process || WaitForSingleObject(handles_->process, 0) == WAIT_OBJECT_0;
}

int ChildProcess::Wait() {
  if (handles_->process) {
    WaitForSingleObject(handles_->process, INFINITE);
    DWORD status = 0;
    GetExitCodeProcess(handles_->process, &status);
    handles_->status = status == kKilled ? -1 : static_cast<int>(status);
    CloseHandle(handles_->process);
    handles_->process = nullptr;
  }
  return handles_->status;
}

}  // namespace mindloft::test
