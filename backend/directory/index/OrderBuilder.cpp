#include "backend/directory/index/OrderBuilder.h"

#include <iterator>
#include <optional>
#include <string>

#include "backend/directory/index/KeySorter.h"
#include "backend/directory/index/OrderBlocks.h"
#include "backend/directory/index/Packed.h"
#include "backend/directory/index/SearchTexts.h"
#include "backend/directory/index/StoredRules.h"
#include "backend/directory/store/ProgressSteps.h"

namespace mindloft {
namespace {

constexpr const char* kColumns[] = {"name", "full_name", "description"};
static_assert(std::size(kColumns) == kOrders.size());

/// What a user counts: reading and sorting for each order take about the same time, and so does storing texts
/// where the folding needs its own.
std::int64_t StepsPerUser(LanguageRules rules) {
  return 2 * std::ssize(kOrders) + (FoldingOf(rules) == Folding::Neutral ? 0 : 1);
}

}  // namespace

void OrderBuilder::Run(const Progress& progress) {
  if (sqlite3_get_autocommit(database_.Handle()) == 0) {
    throw Error(ErrorNumber::DirectoryBusy, "the users cannot be sorted during a change");
  }
  // Who is told reads users, not steps.
  const auto stepsPerUser = StepsPerUser(rules_);
  const Progress inUsers = [&](std::int64_t done, std::int64_t total) {
    return !progress || progress(done / stepsPerUser, total / stepsPerUser);
  };
  SortedIds sorted;
  std::optional<ProgressSteps> steps;
  auto sort = [&] {
    const auto users = Users();
    steps.emplace(inUsers, users * stepsPerUser);
    sorted = Sort(*steps, users);
  };
  sqlite::FileState seen;
  {
    sqlite::Snapshot snapshot(database_);
    if (IsBuilt()) return;
    seen = database_.State();
    sort();
  }
  sqlite::Transaction transaction(database_);
  if (database_.State() != seen) {
    // Somebody was faster, or has changed users meanwhile.
    if (IsBuilt()) return;
    sort();
  }
  Store(sorted, *steps);
  transaction.Commit();
}

bool OrderBuilder::IsBuilt() {
  return StoredRules(database_).Has(rules_);
}

std::int64_t OrderBuilder::Users() {
  auto count = database_.Prepare("SELECT count(*) FROM user");
  count->Step();
  return count->Int(0);
}

OrderBuilder::SortedIds OrderBuilder::Sort(ProgressSteps& steps, std::int64_t users) {
  SortedIds sorted;
  for (const Order order : kOrders) {
    KeySorter sorter(rules_, static_cast<std::size_t>(users));
    // A statement of its own: the report may read the directory meanwhile.
    sqlite::Statement select(database_.Handle(),
                             std::string("SELECT id,") + kColumns[PlaceOf(order)] + " FROM user ORDER BY id");
    while (select.Step()) {
      sorter.Add(PackId(select.Int(0)), FoldedText(select.TextView(1), FoldingOf(rules_)));
      steps.Done(1);
    }
    sorted[PlaceOf(order)] = sorter.TakeSorted();
    steps.Done(users);
  }
  return sorted;
}

void OrderBuilder::Store(const SortedIds& sorted, ProgressSteps& steps) {
  StoredRules stored(database_);
  stored.Remove(rules_);
  if (FoldingOf(rules_) != Folding::Neutral) StoreTexts(steps);
  for (const Order order : kOrders) {
    OrderBlocks(database_, rules_, order).WriteAll(sorted[PlaceOf(order)], blockSize_);
  }
  stored.Add(rules_);
}

void OrderBuilder::StoreTexts(ProgressSteps& steps) {
  SearchTexts texts(database_, FoldingOf(rules_));
  TextChunkWriter writer;
  std::int64_t chunk = -1;
  std::string line;
  auto finish = [&] {
    if (chunk >= 0) texts.Write(chunk, writer.Finish());
  };
  sqlite::Statement select(database_.Handle(), "SELECT id,name,full_name,description FROM user ORDER BY id");
  while (select.Step()) {
    const PackedId id = PackId(select.Int(0));
    if (const std::int64_t number = id / TextChunk::kUsers; number != chunk) {
      finish();
      chunk = number;
    }
    line.clear();
    TextChunk::AppendUser(
        line, FoldedUser::Of(select.TextView(1), select.TextView(2), select.TextView(3), FoldingOf(rules_)));
    writer.Add(id % TextChunk::kUsers, line);
    steps.Done(1);
  }
  finish();
}

}  // namespace mindloft
