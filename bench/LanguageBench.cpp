#include "bench/LanguageBench.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "backend/directory/SqliteDirectory.h"
#include "bench/FillBench.h"

namespace mindloft::bench {
namespace {

constexpr std::int64_t kPage = 50;
constexpr int kRandomPages = 200;
constexpr std::pair<int, const char*> kLanguages[] = {
    {2052, "Chinese"}, {1041, "Japanese"}, {1025, "Arabic"}, {1055, "Turkish"}};

/// The first use, and how long it goes on without a report.
void MeasureBuilding(SqliteDirectory& directory, SessionId session, int language, const std::string& name,
                     Report& report) {
  const double memory = ResidentMiB();
  double longest = 0, most = memory;
  auto last = NowMilliseconds();
  const double time = Milliseconds([&] {
    directory.SetLanguage(session, language, [&](std::int64_t, std::int64_t) {
      const auto now = NowMilliseconds();
      longest = std::max(longest, now - last);
      last = now;
      most = std::max(most, ResidentMiB());
      return true;
    });
  });
  longest = std::max(longest, NowMilliseconds() - last);
  report.AtMost(name + ": first use", time / 1000, 10, "s");
  report.AtMost(name + ": longest time without a report", longest, 1500, "ms");
  report.Note(name + ": memory taken meanwhile", most - memory, "MiB");
}

void MeasurePages(Directory& directory, SessionId session, const std::string& name, Report& report) {
  std::mt19937 random(13);
  std::vector<double> pages, prefixes, filters;
  for (Order order : {Order::Name, Order::FullName, Order::Description}) {
    Query query{.order = order, .filter = {}};
    const auto count = directory.Count(session, query);
    for (int i = 0; i < kRandomPages; ++i) {
      const auto at = static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(count));
      pages.push_back(Milliseconds([&] { directory.UserPage(session, query, at, kPage); }));
      const auto prefix = directory.UserPage(session, query, at, 1).at(0).fullName.substr(0, 6);
      prefixes.push_back(Milliseconds([&] { directory.FindPrefix(session, query, prefix, 0); }));
    }
    for (const char* filter : {"i", "is", "ol", "王", "room 7"}) {
      query.filter = filter;
      filters.push_back(Milliseconds([&] { directory.UserPage(session, query, 0, kPage); }));
    }
  }
  report.AtMost(name + ": page of 50: 99 of 100 within", Percentile(pages, 0.99), 5, "ms");
  report.AtMost(name + ": typing jumps to a row: 99 of 100 within", Percentile(prefixes, 0.99), 5, "ms");
  report.AtMost(name + ": filter and order changed: slowest", Percentile(filters, 1), 90, "ms");
}

void MeasureChanges(Directory& directory, SessionId session, Report& report) {
  std::vector<double> times;
  std::vector<ObjectVersion> some;
  const auto count = directory.Count(session, {});
  for (std::int64_t at = 1; at < count && some.size() < 1000; at += std::max<std::int64_t>(count / 1100, 1)) {
    const auto user = directory.UserPage(session, {}, at, 1).at(0);
    if (user.name == kAdministrator) continue;
    some.push_back({user.id, user.version});
    if (some.size() % 10 != 0) continue;
    UserChange change;
    change.id = user.id;
    change.version = user.version;
    change.fullName = "Changed " + user.fullName;
    times.push_back(
        Milliseconds([&] { some.back().version = directory.ChangeUser(session, change).version; }));
  }
  report.Note("all languages: change of a user: median", Percentile(times, 0.5), "ms");
  report.AtMost("all languages: change of a user: 99 of 100 within", Percentile(times, 0.99), 30, "ms");
  const double deleting = Milliseconds([&] { directory.DeleteUsers(session, some, {}); });
  report.AtMost("all languages: deleting 1,000 scattered users", deleting, 1500, "ms");
}

}  // namespace

void MeasureLanguages(const std::filesystem::path& file, Report& report) {
  const auto copy = file.parent_path() / "languages.mdir";
  std::filesystem::copy_file(file, copy, std::filesystem::copy_options::overwrite_existing);
  {
    const auto directory = SqliteDirectory::Open(copy);
    const auto session = directory->Login(kAdministrator, kPassword);
    for (const auto& [language, name] : kLanguages) {
      MeasureBuilding(*directory, session, language, name, report);
      MeasurePages(*directory, session, name, report);
    }
    MeasureChanges(*directory, session, report);
  }
  std::filesystem::remove(copy);
}

}  // namespace mindloft::bench
