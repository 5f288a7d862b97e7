#include "bench/ReadBench.h"

#include <algorithm>
#include <random>
#include <string>

#include "backend/directory/index/FoldedUser.h"
#include "backend/directory/index/UserIndex.h"
#include "bench/SampleRows.h"

namespace mindloft::bench {
namespace {

constexpr std::int64_t kPage = 50;
constexpr int kRandomPages = 200;  // for each order, direction and filter
constexpr std::size_t kUsersAtOnce = 2000;

/// A page with its rows read, as a window reads it.
void ReadPage(sqlite::Database& database, UserIndex& index, const Query& query, std::int64_t first) {
  auto row = database.Prepare("SELECT * FROM user WHERE id=?");
  for (ObjectId id : index.Page(query, first, kPage)) {
    row->Reset();
    row->BindAll(id);
    row->Step();
  }
}

/// The user's text so far after each key.
std::vector<std::string> Keystrokes(std::string_view text) {
  std::vector<std::string> typed;
  for (std::size_t i = 1; i <= text.size(); ++i) {
    bool wholeCharacter = i == text.size() || (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80;
    if (wholeCharacter) typed.emplace_back(text.substr(0, i));
  }
  return typed;
}

void MeasurePages(sqlite::Database& database, UserIndex& index, Report& report) {
  std::mt19937 random(7);
  std::vector<double> times, first, last;
  for (std::string filter : {"", "a", "office", "li w", "000123", "оль"}) {
    for (Order order : kOrders) {
      for (bool descending : {false, true}) {
        Query query{.order = order, .descending = descending, .filter = filter};
        auto count = index.Count(query);
        if (count == 0) continue;
        ReadPage(database, index, query, 0);  // choosing the order has a target of its own
        for (int i = 0; i < kRandomPages; ++i) {
          auto at = static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(count));
          times.push_back(Milliseconds([&] { ReadPage(database, index, query, at); }));
        }
        for (int i = 0; i < 20; ++i) {
          first.push_back(Milliseconds([&] { ReadPage(database, index, query, 0); }));
          auto end = std::max<std::int64_t>(count - kPage, 0);
          last.push_back(Milliseconds([&] { ReadPage(database, index, query, end); }));
        }
      }
    }
  }
  report.Note("page of 50: pages measured", static_cast<double>(times.size()), "");
  report.Note("page of 50: median", Percentile(times, 0.5), "ms");
  report.AtMost("page of 50: 99 of 100 within", Percentile(times, 0.99), 5, "ms");
  report.Note("page of 50: slowest", Percentile(times, 1), "ms");
  report.AtMost("page of 50: last to first (medians)", Percentile(last, 0.5) / Percentile(first, 0.5), 3, "");
}

void MeasureFilters(sqlite::Database& database, UserIndex& index, Report& report) {
  std::vector<double> all;
  for (auto text : kTypedTexts) {
    for (const auto& typed : Keystrokes(text)) {
      Query query{.filter = typed};
      std::int64_t count = 0;
      double time = Milliseconds([&] {
        count = index.Count(query);
        ReadPage(database, index, query, 0);
      });
      report.Note("filter \"" + typed + "\", " + std::to_string(count) + " users", time, "ms");
      all.push_back(time);
    }
  }
  report.AtMost("filter changed: slowest", Percentile(all, 1), 60, "ms");
}

void MeasureOrders(sqlite::Database& database, UserIndex& index, Report& report) {
  std::vector<double> all;
  // Each filter is new to the index, so that no order of it is known.
  for (std::string filter : {"", "s", "ar", "room 1", "иван"}) {
    index.Count(Query{.filter = filter});
    for (Order order : kOrders) {
      for (bool descending : {false, true}) {
        Query query{.order = order, .descending = descending, .filter = filter};
        all.push_back(Milliseconds([&] { ReadPage(database, index, query, 0); }));
      }
    }
  }
  report.Note("order changed: median", Percentile(all, 0.5), "ms");
  report.AtMost("order changed: slowest", Percentile(all, 1), 30, "ms");
}

void MeasureLookups(UserIndex& index, Report& report) {
  std::mt19937 random(11);
  std::vector<double> prefixes, positions, many;
  for (std::string filter : {"", "a"}) {
    for (Order order : kOrders) {
      Query query{.order = order, .filter = filter};
      auto count = index.Count(query);
      index.Page(query, 0, 1);
      for (int i = 0; i < kRandomPages; ++i) {
        auto user = static_cast<ObjectId>(random() % static_cast<std::uint64_t>(count)) + 1;
        auto start = SampleUser(static_cast<std::uint32_t>(user)).fullName.substr(0, 4);
        prefixes.push_back(Milliseconds([&] { index.FindPrefix(query, start, 0); }));
        positions.push_back(Milliseconds([&] { index.PositionOf(query, user); }));
      }
      std::vector<ObjectId> users(kUsersAtOnce);
      for (ObjectId& user : users)
        user = static_cast<ObjectId>(random() % static_cast<std::uint64_t>(count)) + 1;
      many.push_back(Milliseconds([&] { index.PositionsOf(query, users); }));
    }
  }
  report.AtMost("typing jumps to a row: 99 of 100 within", Percentile(prefixes, 0.99), 5, "ms");
  report.AtMost("position of a user: 99 of 100 within", Percentile(positions, 0.99), 5, "ms");
  report.AtMost("positions of 2,000 users at once: slowest", Percentile(many, 1), 100, "ms");
}

void MeasureScopes(UserIndex& index, Report& report) {
  std::vector<double> times;
  for (Collection collection :
       {Collection::DomainUsers, Collection::UsersWithoutDomain, Collection::GroupMembers,
        Collection::UsersWithoutGroup, Collection::UsersWithoutRole}) {
    Query query{.collection = collection, .scope = 2, .filter = {}};
    times.push_back(Milliseconds([&] {
      index.Count(query);
      index.Page(query, 0, kPage);
    }));
  }
  report.AtMost("users of a domain or group: slowest", Percentile(times, 1), 60, "ms");
}

void MeasureChanges(sqlite::Database& database, UserIndex& index, Report& report) {
  std::vector<double> times;
  sqlite::Transaction transaction(database);  // not committed: the index's own work is measured
  for (std::uint32_t number = 1; number <= 300; ++number) {
    auto before = SampleUser(number * 3001), after = SampleUser(number * 3001 + 5000000);
    times.push_back(Milliseconds([&] {
      index.Change(number * 3001, {before.name, before.fullName, before.description},
                   {after.name, after.fullName, after.description});
    }));
  }
  report.AtMost("change of all texts of a user: 99 of 100 within", Percentile(times, 0.99), 5, "ms");
}

}  // namespace

void MeasureReading(const std::filesystem::path& file, Report& report) {
  sqlite::Database database(file, SQLITE_OPEN_READWRITE);
  double memory = ResidentMiB();
  UserIndex index(database);
  double opening = Milliseconds([&] { ReadPage(database, index, {}, 0); });
  report.AtMost("first page after opening", opening, 10, "ms");
  MeasureFilters(database, index, report);
  MeasureOrders(database, index, report);
  MeasurePages(database, index, report);
  MeasureLookups(index, report);
  MeasureScopes(index, report);
  report.AtMost("memory taken by all of this", ResidentMiB() - memory, 8, "MiB");
  MeasureChanges(database, index, report);
}

}  // namespace mindloft::bench
