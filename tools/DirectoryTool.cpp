#include "tools/DirectoryTool.h"

#include <algorithm>
#include <array>
#include <ostream>

#include "tools/CheckCommand.h"
#include "tools/CreateCommand.h"
#include "tools/ErrorSentence.h"
#include "tools/InfoCommand.h"
#include "tools/SampleCommand.h"
#include "tools/UsageError.h"

namespace mindloft {
namespace {

constexpr const char* kProgram = "mindloft-directory";

const std::array<const Command*, 4>& Commands() {
  static const CreateCommand create;
  static const SampleCommand sample;
  static const CheckCommand check;
  static const InfoCommand info;
  static const std::array<const Command*, 4> commands = {&create, &sample, &check, &info};
  return commands;
}

/// One line of help, its second column aligned.
void WriteLine(std::ostream& out, std::string first, std::string_view second) {
  constexpr std::size_t kColumn = 20;
  first.resize(std::max(first.size() + 1, kColumn), ' ');
  out << "  " << first << second << '\n';
}

void WriteHelp(std::ostream& out) {
  out << "Makes, checks and describes Mindloft directory files.\n\nUsage: " << kProgram
      << " COMMAND FILE [OPTION...]\n\nCommands:\n";
  for (const auto* command : Commands()) WriteLine(out, std::string(command->Name()), command->Summary());
  out << "\nOptions:\n";
  WriteLine(out, "--help", "show this, or with a command what the command takes");
  WriteLine(out, "--version", "show the version");
}

void WriteHelp(std::ostream& out, const Command& command) {
  out << command.Summary() << "\n\nUsage: " << kProgram << ' ' << command.Name() << " FILE"
      << (command.Options().empty() ? "" : " [OPTION...]") << '\n';
  if (!command.Details().empty()) out << '\n' << command.Details();
  if (command.Options().empty()) return;
  out << "\nOptions:\n";
  for (const auto& option : command.Options()) {
    WriteLine(out, std::string(option.name) + (option.value.empty() ? "" : " ") + std::string(option.value),
              option.help);
  }
}

const Command& CommandOf(const std::string& name) {
  for (const auto* command : Commands()) {
    if (command->Name() == name) return *command;
  }
  throw UsageError("There is no command " + name + ".");
}

bool AsksForHelp(const std::vector<std::string>& arguments) {
  const auto end = std::find(arguments.begin(), arguments.end(), "--");
  return std::any_of(arguments.begin(), end,
                     [](const auto& text) { return text == "--help" || text == "-h"; });
}

int RunCommand(const Command& command, const std::vector<std::string>& rest, Console& console) {
  const Arguments arguments(rest, command.Options());
  try {
    return command.Run(arguments, console);
  } catch (const UsageError&) {
    throw;
  } catch (...) {
    console.err << kProgram << ": " << ErrorSentence(CurrentError(), arguments.File()) << '\n';
    return 1;
  }
}

int Run(const std::vector<std::string>& arguments, Console& console) {
  if (arguments.empty()) throw UsageError("A command is missing.");
  if (arguments.front() == "--help" || arguments.front() == "-h") {
    WriteHelp(console.out);
    return 0;
  }
  if (arguments.front() == "--version") {
    console.out << kProgram << ' ' << MINDLOFT_VERSION << '\n';
    return 0;
  }
  const auto& command = CommandOf(arguments.front());
  const std::vector<std::string> rest(arguments.begin() + 1, arguments.end());
  if (AsksForHelp(rest)) {
    WriteHelp(console.out, command);
    return 0;
  }
  return RunCommand(command, rest, console);
}

}  // namespace

int RunDirectoryTool(const std::vector<std::string>& arguments, Console& console) {
  try {
    const int status = Run(arguments, console);
    console.out.flush();
    // A password or a finding that was not printed must not look like success.
    return console.out ? status : std::max(status, 1);
  } catch (const UsageError& error) {
    console.err << kProgram << ": " << error.Description() << "\nTry: " << kProgram << " --help\n";
    return 2;
  }
}

}  // namespace mindloft
