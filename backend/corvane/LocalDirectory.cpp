#include "backend/corvane/LocalDirectory.h"

#include <algorithm>
#include <system_error>

#include "backend/directory/SqliteDirectory.h"
#include "backend/errors/Error.h"
#include "platform/Paths.h"

namespace mindloft::Corvane {

bool IsLocalServer(std::string_view server) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const auto first = server.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return true;
  server = server.substr(first, server.find_last_not_of(kBlanks) - first + 1);
  constexpr std::string_view kLocal = "(local)";
  return std::equal(server.begin(), server.end(), kLocal.begin(), kLocal.end(), [](char left, char right) {
    return (left >= 'A' && left <= 'Z' ? char(left - 'A' + 'a') : left) == right;
  });
}

int MinimumPasswordLength() {
  return Directory::kMinimumPasswordLength;
}

void CreateLocalDirectory(const std::filesystem::path& file, const std::string& administratorName,
                          const std::string& password) {
  std::error_code problem;
  if (file.has_parent_path()) std::filesystem::create_directories(file.parent_path(), problem);
  if (problem) {
    const auto folder = platform::PathToUtf8(file.parent_path());
    throw Error(ErrorNumber::PathAccess, folder + ";" + problem.message(), {folder});
  }
  SqliteDirectory::Create(file, {administratorName, password});
}

}  // namespace mindloft::Corvane
