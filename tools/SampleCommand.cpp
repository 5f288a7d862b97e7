#include "tools/SampleCommand.h"

#include <limits>
#include <ostream>

#include "platform/Paths.h"
#include "tools/SampleDirectory.h"

namespace mindloft {

std::string_view SampleCommand::Summary() const {
  return "Makes a directory filled with invented users, domains and groups.";
}

std::string_view SampleCommand::Details() const {
  return "The same numbers and seed make the same directory. Its administrator is \"admin\", with a new "
         "password\n"
         "each time, which the last line printed tells; nobody else can log in.\n";
}

const std::vector<Option>& SampleCommand::Options() const {
  static const std::vector<Option> options = {
      {"--users", "N", "users in all (1000)"},
      {"--domains", "N", "knowledge domains (12)"},
      {"--groups", "N", "groups of each domain beside its administrators (5)"},
      {"--seed", "S", "another number invents other names (1)"},
      {"--force", "", "replace a file that is there already"},
  };
  return options;
}

int SampleCommand::Run(const Arguments& arguments, Console& console) const {
  SampleOptions options;
  const auto number = [&](std::string_view option, std::int64_t preset, std::int64_t least,
                          std::int64_t greatest) {
    return static_cast<std::int64_t>(arguments.Number(option, preset, least, greatest));
  };
  options.users = number("--users", options.users, 1, kMaximumSampleUsers);
  options.domains = number("--domains", options.domains, 0, kMaximumSampleDomains);
  options.groups = number("--groups", options.groups, 0, kMaximumSampleGroups);
  options.seed = arguments.Number("--seed", options.seed, 0, std::numeric_limits<std::uint64_t>::max());
  options.overwrite = arguments.Has("--force");
  const auto password = MakeSampleDirectory(platform::PathFromUtf8(arguments.File()), options);
  console.out << "Created " << arguments.File() << " with " << options.users << " users and "
              << options.domains << " domains.\nadministrator: admin\npassword: " << password << '\n';
  return 0;
}

}  // namespace mindloft
