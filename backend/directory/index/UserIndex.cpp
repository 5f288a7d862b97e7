#include "backend/directory/index/UserIndex.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <utility>

#include "backend/directory/index/IndexCheck.h"
#include "backend/directory/index/IndexImage.h"
#include "backend/directory/index/OrderBlocks.h"
#include "backend/directory/index/OrderBuilder.h"
#include "backend/directory/index/Packed.h"
#include "backend/directory/index/SortedUsers.h"
#include "backend/directory/index/StoredRules.h"

namespace mindloft {
namespace {

/// How many blocks of the orders are read and sifted in the time that finding and removing one user takes.
constexpr std::size_t kBlocksPerSearch = 100;

}  // namespace

struct UserIndex::Impl {
  Impl(sqlite::Database& file, std::size_t sizeOfBlocks)
      : database(file),
        blockSize(sizeOfBlocks),
        texts{SearchTexts(file, Folding::Neutral), SearchTexts(file, Folding::Turkish)} {}

  /// What is remembered of the users by these rules, as the file is now; OrdersMissing.
  SortedUsers& Current(LanguageRules rules) {
    if (const auto now = database.State(); now != state) {
      Forget();
      state = now;
    }
    auto& isKept = kept.at(static_cast<std::size_t>(rules));
    if (!isKept && !stored.Has(rules)) throw OrdersMissing{rules};
    isKept = true;
    return Sorted(rules);
  }
  SortedUsers& Sorted(LanguageRules rules) {
    auto& entry = sorted.at(static_cast<std::size_t>(rules));
    if (!entry) entry = std::make_unique<SortedUsers>(database, rules, blockSize);
    return *entry;
  }
  void Forget() {
    kept.fill(false);
    for (auto& users : sorted) {
      if (users) users->Forget();
    }
  }
  /// The rules that a change has to keep; those that this program cannot keep are taken out.
  std::vector<LanguageRules> BeginChange() {
    Forget();
    stored.RemoveForeign();
    return stored.Current();
  }
  void Put(PackedId id, const UserTexts* user);
  void Put(PackedId id, const UserTexts* user, Folding folding, const std::vector<LanguageRules>& rules);
  void Remove(std::span<const ObjectId> users);

  sqlite::Database& database;
  std::size_t blockSize;
  sqlite::FileState state;  ///< of which the rest remembers
  StoredRules stored{database};
  std::array<SearchTexts, kFoldings.size()> texts;
  std::array<bool, kLanguageRules.size()> kept{};  ///< known to be in the file
  std::array<std::unique_ptr<SortedUsers>, kLanguageRules.size()> sorted;
};

namespace {

/// Looking a user up costs about as much as walking over some ten thousand.
constexpr std::int64_t kWorthWalking = 50;

bool IsPacked(ObjectId user) {
  return user > 0 && user <= ObjectId{UINT32_MAX};
}

/// One query on the users as the rules of a language sort them.
class Reading {
 public:
  Reading(SortedUsers& users, const Query& query, LanguageRules rules)
      : query_(query), folding_(FoldingOf(rules)), order_(users.OrderOf(query.order)) {
    auto filter = FoldedText(query.filter, folding_);
    const bool scoped = query.collection != Collection::Users;
    // All users: nothing has to be remembered for them.
    if (!scoped && filter.empty()) return;
    selection_ = &users.Selected().Get({query.collection, scoped ? query.scope : 0, std::move(filter)});
  }
  UserOrder& Users() { return order_; }
  std::int64_t Count() { return selection_ ? selection_->Count() : order_.Count(); }
  bool Has(PackedId id) const { return !selection_ || selection_->Ids().Has(id); }
  std::vector<ObjectId> Slice(std::int64_t low, std::int64_t high) {
    return selection_ ? selection_->Slice(order_, query_.order, low, high) : order_.Slice(low, high);
  }
  /// The position, ascending, of the first user of the query at or behind a place.
  std::int64_t PositionAt(UserOrder::Place place) {
    return selection_ ? selection_->CountBefore(order_, query_.order, place) : order_.CountBefore(place);
  }
  std::string Folded(std::string_view text) const { return FoldedText(text, folding_); }
  /// Those users of a set that are listed, by one walk over the order; positions count upwards.
  std::unordered_map<PackedId, std::int64_t> PositionsOf(const IdSet& users) {
    std::unordered_map<PackedId, std::int64_t> positions;
    std::int64_t position = 0;
    for (std::size_t block = 0; block < order_.Blocks().size(); ++block) {
      for (const PackedId id : order_.Ids(block)) {
        if (!Has(id)) continue;
        if (users.Has(id)) positions.emplace(id, position);
        ++position;
      }
    }
    return positions;
  }

 private:
  const Query& query_;
  Folding folding_;
  UserOrder& order_;
  Selection* selection_ = nullptr;
};

}  // namespace

/// Nullptr: the user goes.
void UserIndex::Impl::Put(PackedId id, const UserTexts* user) {
  const auto rules = BeginChange();
  for (Folding folding : kFoldings) {
    std::vector<LanguageRules> same;
    std::ranges::copy_if(rules, std::back_inserter(same), [&](auto r) { return FoldingOf(r) == folding; });
    if (folding == Folding::Neutral || !same.empty()) Put(id, user, folding, same);
  }
}

void UserIndex::Impl::Put(PackedId id, const UserTexts* user, Folding folding,
                          const std::vector<LanguageRules>& rules) {
  auto& stored = texts.at(static_cast<std::size_t>(folding));
  const auto before = stored.Find(id);
  std::optional<FoldedUser> after;
  if (user) after = FoldedUser::Of(user->name, user->fullName, user->description, folding);
  if (before == after) return;
  auto forEachMoved = [&](const auto& visit) {
    for (LanguageRules r : rules) {
      for (Order order : kOrders) {
        const auto place = PlaceOf(order);
        if (!before || !after || before->keys[place] != after->keys[place])
          visit(Sorted(r).OrderOf(order), place);
      }
    }
  };
  // The orders compare by the stored texts: out of them with the old ones, in with the new ones.
  if (before)
    forEachMoved([&](UserOrder& order, std::size_t place) { order.Remove(id, before->keys[place]); });
  stored.Put(id, after ? &*after : nullptr);
  if (after) forEachMoved([&](UserOrder& order, std::size_t place) { order.Insert(id, after->keys[place]); });
}

void UserIndex::Impl::Remove(std::span<const ObjectId> users) {
  const auto rules = BeginChange();
  std::size_t blocks = 0;
  if (!rules.empty()) blocks = Sorted(rules.front()).OrderOf(Order::Name).Blocks().size();
  if (users.size() * kBlocksPerSearch < blocks) {
    for (ObjectId id : users) Put(PackId(id), nullptr);
    return;
  }
  IdSet gone;
  for (ObjectId id : users) gone.Add(PackId(id));
  std::array<std::int64_t, kFoldings.size()> removed{};
  for (Folding folding : kFoldings) {
    const auto at = static_cast<std::size_t>(folding);
    removed.at(at) = texts.at(at).Remove(gone);
  }
  for (LanguageRules r : rules) {
    for (auto& order : Sorted(r).Orders())
      order.Remove(gone, removed.at(static_cast<std::size_t>(FoldingOf(r))));
  }
}

UserIndex::UserIndex(sqlite::Database& database, std::size_t blockSize)
    : impl_(std::make_unique<Impl>(database, blockSize)) {}

UserIndex::~UserIndex() = default;

void UserIndex::UpgradeTables(sqlite::Database& database) {
  // Under other names than before: a program that has the file open from before, and would order
  // in its own way, fails instead.
  database.Execute(
      "ALTER TABLE user_text RENAME TO user_folded;"
      "DROP TABLE user_order; DROP TABLE user_order_block");
  OrderBlocks::CreateTables(database);
  StoredRules::CreateTable(database);
  auto any = database.Prepare("SELECT 1 FROM user LIMIT 1");
  if (!any->Step()) StoredRules(database).Add(LanguageRules::Neutral);
}

bool UserIndex::Has(LanguageRules rules) {
  return impl_->stored.Has(rules);
}

void UserIndex::Build(LanguageRules rules, const Progress& progress) {
  OrderBuilder(impl_->database, rules, impl_->blockSize).Run(progress);
}

void UserIndex::Insert(ObjectId id, const UserTexts& texts) {
  impl_->Put(PackId(id), &texts);
}

void UserIndex::Change(ObjectId id, const UserTexts&, const UserTexts& after) {
  Insert(id, after);
}

void UserIndex::Remove(std::span<const ObjectId> users) {
  impl_->Remove(users);
}

void UserIndex::Rebuild() {
  impl_->Forget();
  IndexImage image;
  image.AddStoredUsers(impl_->database);
  image.Write(impl_->database, impl_->blockSize);
}

std::vector<std::string> UserIndex::Check() {
  sqlite::Snapshot snapshot(impl_->database);
  return CheckIndex(impl_->database);
}

std::int64_t UserIndex::Count(const Query& query, LanguageRules rules) {
  sqlite::Snapshot snapshot(impl_->database);
  return Reading(impl_->Current(rules), query, rules).Count();
}

std::vector<ObjectId> UserIndex::Page(const Query& query, std::int64_t first, std::int64_t count,
                                      LanguageRules rules) {
  sqlite::Snapshot snapshot(impl_->database);
  Reading reading(impl_->Current(rules), query, rules);
  const auto total = reading.Count();
  first = std::clamp<std::int64_t>(first, 0, total);
  auto last = first + std::clamp<std::int64_t>(count, 0, total - first);
  // Positions of a descending query count from the end.
  auto page = query.descending ? reading.Slice(total - last, total - first) : reading.Slice(first, last);
  if (query.descending) std::reverse(page.begin(), page.end());
  return page;
}

std::int64_t UserIndex::FindPrefix(const Query& query, std::string_view prefix, std::int64_t from,
                                   LanguageRules rules) {
  sqlite::Snapshot snapshot(impl_->database);
  Reading reading(impl_->Current(rules), query, rules);
  auto places = reading.Users().PlacesOf(reading.Folded(prefix));
  auto first = reading.PositionAt(places.first);
  auto end = reading.PositionAt(places.second);
  if (first == end) return -1;
  if (query.descending) {
    const auto total = reading.Count();
    first = std::exchange(end, total - first);
    first = total - first;
  }
  return from >= first && from < end ? from : first;
}

std::int64_t UserIndex::PositionOf(const Query& query, ObjectId user, LanguageRules rules) {
  return PositionsOf(query, {user}, rules).front();
}

std::vector<std::int64_t> UserIndex::PositionsOf(const Query& query, const std::vector<ObjectId>& users,
                                                 LanguageRules rules) {
  sqlite::Snapshot snapshot(impl_->database);
  auto& sorted = impl_->Current(rules);
  Reading reading(sorted, query, rules);
  std::unordered_map<PackedId, std::int64_t> walked;
  const bool walk = std::ssize(users) >= kWorthWalking;
  if (walk) {
    IdSet sought;
    for (const ObjectId user : users)
      if (IsPacked(user)) sought.Add(static_cast<PackedId>(user));
    walked = reading.PositionsOf(sought);
  }
  const auto positionOf = [&](PackedId id) -> std::int64_t {
    if (walk) {
      const auto found = walked.find(id);
      return found == walked.end() ? -1 : found->second;
    }
    if (!reading.Has(id)) return -1;
    const auto folded = sorted.Texts().Find(id);
    return folded ? reading.PositionAt(reading.Users().PlaceOf(id, folded->keys[PlaceOf(query.order)])) : -1;
  };
  const std::int64_t last = query.descending ? reading.Count() - 1 : 0;
  std::vector<std::int64_t> positions;
  positions.reserve(users.size());
  for (const ObjectId user : users) {
    const std::int64_t position = IsPacked(user) ? positionOf(static_cast<PackedId>(user)) : -1;
    positions.push_back(position >= 0 && query.descending ? last - position : position);
  }
  return positions;
}

}  // namespace mindloft
