#include "app/CommandLineOptions.h"

#include <system_error>

#include "backend/tessaline/Text.h"
#include "platform/Paths.h"

namespace mindloft {

CommandLineOptions CommandLineOptions::Parse(const std::vector<wxString>& arguments) {
  CommandLineOptions options;
  bool optionsEnded = false;
  wxString file;
  const auto takeFile = [&](const wxString& name) {
    options.directoryIsMissing = name.empty();
    file = name;
  };
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const auto& argument = arguments[i];
    wxString value;
    if (optionsEnded) {
      options.nodeName << (options.nodeName.empty() ? "" : " ") << argument;
    } else if (argument == "--") {
      optionsEnded = true;
    } else if (argument == "--directory") {
      takeFile(++i < arguments.size() ? arguments[i] : wxString());
    } else if (argument.StartsWith("--directory=", &value)) {
      takeFile(value);
    } else if (argument == "--help") {
      options.help = true;
    } else if (argument == "--version") {
      options.version = true;
    } else {
      options.nodeName << (options.nodeName.empty() ? "" : " ") << argument;
    }
  }
  if (!file.empty()) {
    // The working folder may change while the program runs.
    std::error_code problem;
    const auto given = platform::PathFromUtf8(ToUtf8(file));
    options.directoryFile = std::filesystem::absolute(given, problem);
    if (problem) options.directoryFile = given;
  }
  return options;
}

}  // namespace mindloft
