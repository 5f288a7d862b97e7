#include "tools/CreateCommand.h"

#include <istream>
#include <ostream>

#include "backend/directory/SqliteDirectory.h"
#include "backend/errors/Error.h"
#include "platform/Paths.h"
#include "tools/UsageError.h"

namespace mindloft {
namespace {

std::string AskFor(Console& console, const std::string& prompt, platform::Echo echo, const char* instead) {
  auto answer = console.ask(prompt, echo);
  if (!answer)
    throw UsageError(std::string("Nobody answered at the terminal; ") + instead + " does without it.");
  return *answer;
}

std::string PasswordFromInput(Console& console) {
  std::string password;
  if (!std::getline(console.in, password)) throw UsageError("There is no password on standard input.");
  if (password.ends_with('\r')) password.pop_back();
  return password;
}

std::string PasswordFromTerminal(Console& console) {
  constexpr const char* kInstead = "--password-stdin";
  for (;;) {
    auto password = AskFor(console, "Password: ", platform::Echo::Hidden, kInstead);
    if (password == AskFor(console, "Password again: ", platform::Echo::Hidden, kInstead)) return password;
    console.err << "The two passwords differ. Please type them again.\n";
  }
}

}  // namespace

std::string_view CreateCommand::Summary() const {
  return "Makes a new directory with its first administrator.";
}

std::string_view CreateCommand::Details() const {
  return "Asks at the terminal for the name and the password (twice) that are not given.\n";
}

const std::vector<Option>& CreateCommand::Options() const {
  static const std::vector<Option> options = {
      {"--name", "NAME", "the first administrator's login name"},
      {"--password-stdin", "", "read the password from the first line of standard input"},
      {"--force", "", "replace a file that is there already"},
  };
  return options;
}

int CreateCommand::Run(const Arguments& arguments, Console& console) const {
  const auto file = platform::PathFromUtf8(arguments.File());
  const bool force = arguments.Has("--force");
  // Told before anybody is asked for a password in vain; Create looks again.
  std::error_code ignored;
  if (!force && std::filesystem::exists(file, ignored)) throw Error(ErrorNumber::DirectoryExists);
  FirstAdministrator administrator;
  const auto name = arguments.Text("--name");
  administrator.name =
      name ? *name : AskFor(console, "Name of the first administrator: ", platform::Echo::Shown, "--name");
  administrator.password =
      arguments.Has("--password-stdin") ? PasswordFromInput(console) : PasswordFromTerminal(console);
  SqliteDirectory::Create(file, administrator, force);
  console.out << "Created " << arguments.File() << ".\n";
  return 0;
}

}  // namespace mindloft
