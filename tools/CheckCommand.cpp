#include "tools/CheckCommand.h"

#include <ostream>

#include "backend/directory/SqliteDirectory.h"
#include "platform/Paths.h"

namespace mindloft {

std::string_view CheckCommand::Summary() const {
  return "Says what is wrong with a directory.";
}

std::string_view CheckCommand::Details() const {
  return "Looks at the file's integrity, at references between objects, at what must never be missing and at "
         "the\n"
         "indexes. The exit status is 0 when all is well, else 1.\n";
}

const std::vector<Option>& CheckCommand::Options() const {
  static const std::vector<Option> options;
  return options;
}

int CheckCommand::Run(const Arguments& arguments, Console& console) const {
  const auto problems = SqliteDirectory::Open(platform::PathFromUtf8(arguments.File()))->Check();
  for (const auto& problem : problems) console.out << problem << '\n';
  if (problems.empty()) console.out << "No problems.\n";
  return problems.empty() ? 0 : 1;
}

}  // namespace mindloft
