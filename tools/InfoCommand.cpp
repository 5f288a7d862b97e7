#include "tools/InfoCommand.h"

#include <iomanip>
#include <ostream>

#include "backend/directory/SqliteDirectory.h"
#include "platform/Paths.h"

namespace mindloft {

std::string_view InfoCommand::Summary() const {
  return "Counts what a directory holds.";
}

std::string_view InfoCommand::Details() const {
  return "";
}

const std::vector<Option>& InfoCommand::Options() const {
  static const std::vector<Option> options;
  return options;
}

int InfoCommand::Run(const Arguments& arguments, Console& console) const {
  const auto file = platform::PathFromUtf8(arguments.File());
  const auto info = SqliteDirectory::Open(file)->Info();
  std::error_code ignored;
  const auto size = std::filesystem::file_size(file, ignored);
  const std::pair<const char*, std::int64_t> lines[] = {
      {"schema version", info.schemaVersion},
      {"users", info.users},
      {"roles", info.roles},
      {"domains", info.domains},
      {"domain users", info.domainUsers},
      {"groups", info.groups},
      {"group members", info.groupMembers},
      {"styles", info.styles},
      {"changes recorded", info.changes},
      {"file size in bytes", ignored ? 0 : static_cast<std::int64_t>(size)},
  };
  for (const auto& [what, number] : lines) {
    console.out << std::left << std::setw(20) << what << std::right << std::setw(16) << number << '\n';
  }
  return 0;
}

}  // namespace mindloft
