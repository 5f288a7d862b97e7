#include "bench/ChangeBench.h"

#include <algorithm>
#include <vector>

#include "backend/directory/SqliteDirectory.h"
#include "bench/FillBench.h"

namespace mindloft::bench {
namespace {

constexpr std::int64_t kDeleted = 1000;

/// Users as far apart as possible, as a selection of rows is in the order of names.
std::vector<ObjectVersion> ScatteredUsers(Directory& directory, SessionId session) {
  std::vector<ObjectVersion> users;
  const auto count = directory.Count(session, {});
  const auto step = std::max<std::int64_t>(count / kDeleted, 1);
  for (std::int64_t at = 0; at < count && std::ssize(users) < kDeleted; at += step) {
    const auto user = directory.UserPage(session, {}, at, 1).at(0);
    if (user.name != kAdministrator) users.push_back({user.id, user.version});
  }
  return users;
}

}  // namespace

void MeasureChanging(const std::filesystem::path& file, Report& report) {
  const auto copy = file.parent_path() / "changed.mdir";
  std::filesystem::copy_file(file, copy, std::filesystem::copy_options::overwrite_existing);
  {
    const auto directory = SqliteDirectory::Open(copy);
    const auto session = directory->Login(kAdministrator, kPassword);
    const auto users = ScatteredUsers(*directory, session);
    const double time = Milliseconds([&] { directory->DeleteUsers(session, users, {}); });
    report.AtMost("deleting 1,000 scattered users at once", time, 500, "ms");
    const auto user = directory->UserPage(session, {}, directory->Count(session, {}) / 2, 1).at(0);
    const double one = Milliseconds([&] { directory->DeleteUsers(session, {{user.id, user.version}}, {}); });
    report.AtMost("deleting one user", one, 50, "ms");
  }
  std::filesystem::remove(copy);
}

}  // namespace mindloft::bench
