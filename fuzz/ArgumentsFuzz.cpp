#include "app/CommandLineOptions.h"
#include "backend/tessaline/Text.h"
#include "fuzz/Fuzz.h"

// A command line, an argument in each line.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<wxString> arguments;
  auto rest = mindloft::fuzz::TextOf(data, size);
  while (!rest.empty()) {
    const auto [first, behind] = mindloft::fuzz::FirstLine(rest);
    arguments.push_back(mindloft::ToWx(first));
    rest = behind;
  }
  const auto options = mindloft::CommandLineOptions::Parse(arguments);
  mindloft::fuzz::Require(options.directoryFile.empty() || options.directoryFile.is_absolute());
  return 0;
}
