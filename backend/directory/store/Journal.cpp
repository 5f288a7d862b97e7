#include "backend/directory/store/Journal.h"

#include <algorithm>

#include "backend/directory/store/IsoTime.h"
#include "platform/Clock.h"

namespace mindloft {

void Journal::Write(std::string_view who, const char* action, const JournalSubject& subject,
                    const JsonObject& before, const JsonObject& after) {
  database_
      .Prepare(
          "INSERT INTO journal (time, who, action, kind, object, name, before, after) "
          "VALUES (?, ?, ?, ?, ?, ?, ?, ?)")
      ->BindAll(platform::NowMilliseconds(), who, std::string_view(action), std::string_view(subject.kind),
                subject.id, subject.name, before.Text(), after.Text())
      .Run();
}

void Journal::RequireVersion(const JournalSubject& subject, Version stored, Version given) {
  if (stored == given) return;
  // A domain's users count as part of the domain. A login changes no version.
  auto last = database_.Prepare(
      "SELECT who, time FROM journal WHERE object = ?1 AND (kind = ?2 OR (?2 = 'domain' AND kind = 'domain "
      "users')) "
      "AND action <> 'login' ORDER BY id DESC LIMIT 1");
  last->BindAll(subject.id, std::string_view(subject.kind));
  std::string who, when;
  if (last->Step()) {
    who = last->Text(0);
    when = IsoTime(last->Int(1));
  }
  throw Error(ErrorNumber::Conflict,
              std::string(subject.kind) + ' ' + std::to_string(subject.id) + ";version " +
                  std::to_string(given) + " is " + std::to_string(stored) + " now",
              {subject.name, who, when});
}

Journal::Range Journal::Rows() {
  auto range = database_.Prepare("SELECT (SELECT min(id) FROM journal), (SELECT max(id) FROM journal)");
  range->Step();
  return range->IsNull(0) ? Range{1, 0} : Range{range->Int(0), range->Int(1)};
}

std::int64_t Journal::Count() {
  auto [first, last] = Rows();
  return last - first + 1;
}

std::vector<JournalRecord> Journal::Page(std::int64_t first, std::int64_t count) {
  auto [oldest, newest] = Rows();
  std::vector<ObjectId> ids;
  for (ObjectId id = newest - first; id >= oldest && std::ssize(ids) < count; --id) ids.push_back(id);
  return Read(ids);
}

std::vector<JournalRecord> Journal::Read(const std::vector<ObjectId>& ids) {
  std::vector<JournalRecord> records;
  auto row = database_.Prepare(
      "SELECT time, who, action, kind, object, name, before, after FROM journal WHERE id = ?");
  for (ObjectId id : ids) {
    row->Reset();
    row->Bind(0, id);
    if (!row->Step()) continue;
    records.push_back({id, row->Int(0), row->Text(1), row->Text(2), row->Text(3), row->Int(4), row->Text(5),
                       row->Text(6), row->Text(7)});
  }
  return records;
}

std::vector<std::int64_t> Journal::PositionsOf(const std::vector<ObjectId>& ids) {
  const auto [oldest, newest] = Rows();
  std::vector<std::int64_t> positions;
  positions.reserve(ids.size());
  for (const ObjectId id : ids) positions.push_back(id >= oldest && id <= newest ? newest - id : -1);
  return positions;
}

}  // namespace mindloft
