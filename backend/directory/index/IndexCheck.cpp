#include "backend/directory/index/IndexCheck.h"

#include <algorithm>
#include <iterator>

#include "backend/directory/index/IndexImage.h"
#include "backend/directory/index/OrderBlocks.h"
#include "backend/directory/index/SearchTexts.h"
#include "backend/directory/index/StoredRules.h"
#include "backend/errors/Error.h"

namespace mindloft {
namespace {

constexpr const char* kOrderNames[] = {"name", "full name", "description"};
constexpr const char* kRulesNames[] = {"", " (Chinese)", " (Japanese)", " (Arabic)", " (Turkish)"};
static_assert(std::size(kOrderNames) == kOrders.size() && std::size(kRulesNames) == kLanguageRules.size());

void CheckTexts(sqlite::Database& database, Folding folding, const IndexImage& image,
                std::vector<std::string>& faults) {
  const std::string name = folding == Folding::Turkish ? "The Turkish search texts" : "The search texts";
  const auto first = SearchTexts::RowOf(folding, 0);
  auto select = database.Prepare("SELECT texts FROM user_folded WHERE chunk=?");
  std::int64_t expected = 0;
  image.ForEachChunk([&](std::int64_t number, const std::string& stored) {
    ++expected;
    select->Reset();
    select->BindAll(first + number);
    if (select->Step() && select->BlobView(0) == stored) return;
    faults.push_back(name + " in block " + std::to_string(number) + " differ from the users.");
  });
  auto count = database.Prepare("SELECT count(*) FROM user_folded WHERE chunk>=? AND chunk<=?");
  count->BindAll(first, first + std::int64_t{UINT32_MAX});
  count->Step();
  if (count->Int(0) != expected) {
    faults.push_back(name + " have " + std::to_string(count->Int(0)) + " blocks instead of " +
                     std::to_string(expected) + ".");
  }
}

/// Where the stored order first differs from the right one; nothing when it does not.
std::string DifferenceIn(OrderBlocks& blocks, const std::vector<PackedId>& expected) {
  std::size_t position = 0;
  for (const auto& block : blocks.ReadMap()) {
    auto ids = blocks.Read(block);
    auto rest = expected.size() - position;
    if (ids.size() > rest) return "it holds more than " + std::to_string(expected.size()) + " users";
    auto begin = expected.begin() + static_cast<std::ptrdiff_t>(position);
    auto differ = std::mismatch(ids.begin(), ids.end(), begin);
    if (differ.first != ids.end()) {
      return "it has user " + std::to_string(*differ.first) + " instead of " +
             std::to_string(*differ.second) + " in position " +
             std::to_string(differ.second - expected.begin());
    }
    position += ids.size();
  }
  if (position == expected.size()) return {};
  return "it holds " + std::to_string(position) + " of " + std::to_string(expected.size()) + " users";
}

void CheckOrder(sqlite::Database& database, const IndexImage& image, LanguageRules rules, Order order,
                std::vector<std::string>& faults) {
  const std::string name =
      std::string(kOrderNames[PlaceOf(order)]) + kRulesNames[static_cast<std::size_t>(rules)];
  try {
    OrderBlocks blocks(database, rules, order);
    if (auto difference = DifferenceIn(blocks, image.Sorted(rules, order)); !difference.empty()) {
      faults.push_back("The order of users by " + name + " is wrong: " + difference + ".");
    }
  } catch (const Error& error) {
    if (error.Number() != ErrorNumber::DirectoryDamaged) throw;
    faults.push_back("The order of users by " + name + " cannot be read: " + error.Description() + ".");
  }
}

void CheckLeftBlocks(sqlite::Database& database, const std::vector<LanguageRules>& current,
                     std::vector<std::string>& faults) {
  std::int64_t listed = 0;
  for (LanguageRules rules : current) {
    for (Order order : kOrders) listed += std::ssize(OrderBlocks(database, rules, order).ReadMap());
  }
  auto count = database.Prepare("SELECT count(*) FROM user_sorting_block");
  count->Step();
  if (count->Int(0) != listed) faults.push_back("The orders of users have blocks that are not listed.");
}

/// Whether another program keeps orders in the file by rules, or editions of them, that this one does not
/// know.
bool HasForeignRules(sqlite::Database& database, const std::vector<LanguageRules>& current) {
  auto count = database.Prepare("SELECT count(*) FROM user_rules");
  count->Step();
  return count->Int(0) != std::ssize(current);
}

}  // namespace

std::vector<std::string> CheckIndex(sqlite::Database& database) {
  const auto current = StoredRules(database).Current();
  // What those are made of cannot be judged; the first change takes them out.
  const bool foreign = HasForeignRules(database, current);
  std::vector<std::string> faults;
  for (Folding folding : kFoldings) {
    IndexImage image(folding);
    // The neutral texts are there without any order; those of another folding go with the rules.
    const bool kept =
        folding == Folding::Neutral || std::ranges::find(current, folding, FoldingOf) != current.end();
    if (!kept && foreign) continue;
    if (kept) image.AddStoredUsers(database);
    CheckTexts(database, folding, image, faults);
    for (LanguageRules rules : current) {
      if (FoldingOf(rules) != folding) continue;
      for (Order order : kOrders) CheckOrder(database, image, rules, order, faults);
    }
  }
  if (!foreign) CheckLeftBlocks(database, current, faults);
  return faults;
}

}  // namespace mindloft
