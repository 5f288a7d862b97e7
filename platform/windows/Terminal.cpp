#include "platform/Terminal.h"

#include <windows.h>

#include "platform/windows/Handle.h"
#include "platform/windows/Wide.h"

namespace mindloft::platform {
namespace {

/// Sets a console's input mode and gives back the former one when it goes.
class InputMode {
 public:
  InputMode(HANDLE console, DWORD mode) : console_(console) {
    GetConsoleMode(console_, &before_);
    SetConsoleMode(console_, mode);
  }
  ~InputMode() { SetConsoleMode(console_, before_); }
  InputMode(const InputMode&) = delete;
  InputMode& operator=(const InputMode&) = delete;

 private:
  HANDLE console_;
  DWORD before_ = 0;
};

Handle OpenConsole(const wchar_t* name) {
  return Handle(CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_EXISTING, 0, nullptr));
}

void Write(HANDLE console, const std::wstring& text) {
  DWORD written = 0;
  WriteConsoleW(console, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

}  // namespace

Utf8Console::Utf8Console() : before_(GetConsoleOutputCP()) {
  SetConsoleOutputCP(CP_UTF8);
}

Utf8Console::~Utf8Console() {
  SetConsoleOutputCP(before_);
}

bool WriteToStandardOutput(const std::string& text) {
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD written = 0;
  return output && output != INVALID_HANDLE_VALUE &&
         WriteFile(output, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
         written == text.size();
}

std::optional<std::string> AskOnTerminal(const std::string& prompt, Echo echo) {
  const auto input = OpenConsole(L"CONIN$");
  const auto output = OpenConsole(L"CONOUT$");
  if (!input || !output) return {};
  const DWORD shown = echo == Echo::Shown ? ENABLE_ECHO_INPUT : 0;
  const InputMode mode(input.Get(), ENABLE_LINE_INPUT | ENABLE_PROCESSED_INPUT | shown);
  Write(output.Get(), Wide(prompt));
  std::wstring line(4096, L'\0');
  DWORD read = 0;
  const bool good = ReadConsoleW(input.Get(), line.data(), static_cast<DWORD>(line.size()), &read, nullptr);
  if (echo == Echo::Hidden) Write(output.Get(), L"\r\n");
  line.resize(read);
  const auto end = line.find_first_of(L"\r\n");
  // Without an end the line was interrupted, or longer than anything that is asked for.
  if (!good || end == std::wstring::npos) return {};
  line.resize(end);
  return Narrow(line);
}

}  // namespace mindloft::platform
