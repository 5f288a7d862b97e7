#include "platform/Terminal.h"

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <iostream>
#include <string_view>

#include "platform/linux/Descriptor.h"

namespace mindloft::platform {
namespace {

/// Lets a terminal show nothing and pass on every key at once, also those that would end the process and
/// leave the terminal so; the former settings come back when it goes.
class HiddenInput {
 public:
  explicit HiddenInput(int terminal) : terminal_(terminal) {
    if (tcgetattr(terminal_, &before_) != 0) return;
    auto hidden = before_;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON | ISIG);
    hidden.c_cc[VMIN] = 1;
    hidden.c_cc[VTIME] = 0;
    set_ = tcsetattr(terminal_, TCSAFLUSH, &hidden) == 0;
  }
  ~HiddenInput() {
    if (set_) tcsetattr(terminal_, TCSAFLUSH, &before_);
  }
  HiddenInput(const HiddenInput&) = delete;
  HiddenInput& operator=(const HiddenInput&) = delete;
  bool IsSet() const { return set_; }

 private:
  int terminal_;
  termios before_{};
  bool set_ = false;
};

void Write(int terminal, std::string_view text) {
  while (!text.empty()) {
    const auto written = write(terminal, text.data(), text.size());
    if (written <= 0) return;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

void EraseCharacter(std::string& line) {
  constexpr unsigned char kContinuation = 0x80, kContinuationMask = 0xC0;
  while (!line.empty()) {
    const auto last = static_cast<unsigned char>(line.back());
    line.pop_back();
    if ((last & kContinuationMask) != kContinuation) return;
  }
}

std::optional<std::string> ReadLine(int terminal) {
  constexpr char kInterrupt = 3, kEndOfInput = 4, kBackspace = 8, kEraseLine = 21, kDelete = 127;
  constexpr std::size_t kMaximumLine = 4096;
  std::string line;
  for (char c = 0; line.size() < kMaximumLine && read(terminal, &c, 1) == 1;) {
    if (c == '\n' || c == '\r') return line;
    if (c == kInterrupt || c == kEndOfInput) return {};
    if (c == kBackspace || c == kDelete) {
      EraseCharacter(line);
    } else if (c == kEraseLine) {
      line.clear();
    } else {
      line += c;
    }
  }
  return {};
}

}  // namespace

Utf8Console::Utf8Console() = default;
Utf8Console::~Utf8Console() = default;

bool WriteToStandardOutput(const std::string& text) {
  std::cout << text << std::flush;
  return std::cout.good();
}

std::optional<std::string> AskOnTerminal(const std::string& prompt, Echo echo) {
  const Descriptor terminal(open("/dev/tty", O_RDWR | O_CLOEXEC));
  if (!terminal) return {};
  if (echo == Echo::Shown) {
    Write(terminal.Get(), prompt);
    return ReadLine(terminal.Get());
  }
  const HiddenInput hidden(terminal.Get());
  if (!hidden.IsSet()) return {};
  Write(terminal.Get(), prompt);
  auto line = ReadLine(terminal.Get());
  Write(terminal.Get(), "\n");
  return line;
}

}  // namespace mindloft::platform
