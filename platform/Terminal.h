#pragma once

#include <optional>
#include <string>

namespace mindloft::platform {

/// While it lives, what the process writes to a console is taken as UTF-8.
class Utf8Console {
 public:
  Utf8Console();
  ~Utf8Console();
  Utf8Console(const Utf8Console&) = delete;
  Utf8Console& operator=(const Utf8Console&) = delete;

 private:
  [[maybe_unused]] unsigned before_ = 0;
};

/// Writes the text (UTF-8) to the process's standard output. False when it has none, as a program with
/// windows has not unless its output is redirected.
bool WriteToStandardOutput(const std::string& text);

/// Whether what is typed can be seen.
enum class Echo { Shown, Hidden };

/// Asks for a line on the process's terminal, wherever its standard streams lead. Nothing when there is no
/// terminal or the person gave up.
std::optional<std::string> AskOnTerminal(const std::string& prompt, Echo echo);

}  // namespace mindloft::platform
