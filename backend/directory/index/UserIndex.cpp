#include "backend/directory/index/UserIndex.h"

#include <algorithm>
#include <utility>

#include "backend/directory/index/IndexCheck.h"
#include "backend/directory/index/IndexImage.h"
#include "backend/directory/index/Packed.h"
#include "backend/directory/index/Selections.h"

namespace mindloft {
namespace {

/// How many blocks of the orders are read and sifted in the time that finding and removing one user takes.
constexpr std::size_t kBlocksPerSearch = 100;

}  // namespace

struct UserIndex::Impl {
  Impl(sqlite::Database& file, std::size_t sizeOfBlocks)
      : database(file),
        blockSize(sizeOfBlocks),
        texts(file),
        orders{UserOrder(file, texts, Order::Name, sizeOfBlocks),
               UserOrder(file, texts, Order::FullName, sizeOfBlocks),
               UserOrder(file, texts, Order::Description, sizeOfBlocks)},
        selections(file, texts, orders[PlaceOf(Order::Name)]) {}

  void Refresh() {
    auto now = database.State();
    if (now != state) Forget();
    state = now;
  }
  void Forget() {
    for (auto& order : orders) order.Forget();
    selections.Forget();
  }
  UserOrder& OrderOf(Order order) { return orders.at(PlaceOf(order)); }
  /// Nullptr: all users, for whom nothing has to be remembered.
  Selection* SelectionOf(const Query& query) {
    auto filter = FoldedText(query.filter);
    if (query.collection == Collection::Users && filter.empty()) return nullptr;
    bool scoped = query.collection != Collection::Users;
    return &selections.Get({query.collection, scoped ? query.scope : 0, std::move(filter)});
  }
  std::int64_t Count(const Query& query, Selection* selection) {
    return selection ? selection->Count() : OrderOf(query.order).Count();
  }
  /// The position, ascending, of the first user of the query at or behind a place.
  std::int64_t PositionAt(const Query& query, Selection* selection, UserOrder::Place place) {
    auto& order = OrderOf(query.order);
    return selection ? selection->CountBefore(order, query.order, place) : order.CountBefore(place);
  }
  void Put(PackedId id, const FoldedUser* user);
  void Remove(std::span<const ObjectId> users);

  sqlite::Database& database;
  std::size_t blockSize;
  sqlite::FileState state;  ///< of which the rest remembers
  SearchTexts texts;
  std::array<UserOrder, kOrders.size()> orders;
  Selections selections;
};

/// Nullptr: the user goes.
void UserIndex::Impl::Put(PackedId id, const FoldedUser* user) {
  Forget();
  const auto before = texts.Find(id);
  auto stays = [&](Order order) {
    return before && user && before->keys[PlaceOf(order)] == user->keys[PlaceOf(order)];
  };
  // The orders compare by the stored texts: out of them with the old ones, in with the new ones.
  for (Order order : kOrders) {
    if (before && !stays(order)) OrderOf(order).Remove(id, before->keys[PlaceOf(order)]);
  }
  texts.Put(id, user);
  for (Order order : kOrders) {
    if (user && !stays(order)) OrderOf(order).Insert(id, user->keys[PlaceOf(order)]);
  }
}

void UserIndex::Impl::Remove(std::span<const ObjectId> users) {
  Forget();
  if (users.size() * kBlocksPerSearch < OrderOf(Order::Name).Blocks().size()) {
    for (ObjectId id : users) Put(PackId(id), nullptr);
    return;
  }
  IdSet gone;
  for (ObjectId id : users) gone.Add(PackId(id));
  const auto removed = texts.Remove(gone);
  for (auto& order : orders) order.Remove(gone, removed);
}

UserIndex::UserIndex(sqlite::Database& database, std::size_t blockSize)
    : impl_(std::make_unique<Impl>(database, blockSize)) {}

UserIndex::~UserIndex() = default;

void UserIndex::CreateTables(sqlite::Database& database) {
  SearchTexts::CreateTable(database);
  OrderBlocks::CreateTables(database);
}

void UserIndex::Insert(ObjectId id, const UserTexts& texts) {
  auto user = FoldedUser::Of(texts.name, texts.fullName, texts.description);
  impl_->Put(PackId(id), &user);
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

std::int64_t UserIndex::Count(const Query& query) {
  sqlite::Snapshot snapshot(impl_->database);
  impl_->Refresh();
  return impl_->Count(query, impl_->SelectionOf(query));
}

std::vector<ObjectId> UserIndex::Page(const Query& query, std::int64_t first, std::int64_t count) {
  sqlite::Snapshot snapshot(impl_->database);
  impl_->Refresh();
  Selection* selection = impl_->SelectionOf(query);
  const auto total = impl_->Count(query, selection);
  first = std::clamp<std::int64_t>(first, 0, total);
  auto last = first + std::clamp<std::int64_t>(count, 0, total - first);
  // Positions of a descending query count from the end.
  auto low = query.descending ? total - last : first;
  auto high = query.descending ? total - first : last;
  auto& order = impl_->OrderOf(query.order);
  auto page = selection ? selection->Slice(order, query.order, low, high) : order.Slice(low, high);
  if (query.descending) std::reverse(page.begin(), page.end());
  return page;
}

std::int64_t UserIndex::FindPrefix(const Query& query, std::string_view prefix, std::int64_t from) {
  sqlite::Snapshot snapshot(impl_->database);
  impl_->Refresh();
  Selection* selection = impl_->SelectionOf(query);
  auto places = impl_->OrderOf(query.order).PlacesOf(FoldedText(prefix));
  auto first = impl_->PositionAt(query, selection, places.first);
  auto end = impl_->PositionAt(query, selection, places.second);
  if (first == end) return -1;
  if (query.descending) {
    const auto total = impl_->Count(query, selection);
    first = std::exchange(end, total - first);
    first = total - first;
  }
  return from >= first && from < end ? from : first;
}

std::int64_t UserIndex::PositionOf(const Query& query, ObjectId user) {
  sqlite::Snapshot snapshot(impl_->database);
  impl_->Refresh();
  if (user <= 0 || user > ObjectId{UINT32_MAX}) return -1;
  const auto id = static_cast<PackedId>(user);
  Selection* selection = impl_->SelectionOf(query);
  if (selection && !selection->Ids().Has(id)) return -1;
  auto folded = impl_->texts.Find(id);
  if (!folded) return -1;
  auto place = impl_->OrderOf(query.order).PlaceOf(id, folded->keys[PlaceOf(query.order)]);
  auto position = impl_->PositionAt(query, selection, place);
  return query.descending ? impl_->Count(query, selection) - 1 - position : position;
}

}  // namespace mindloft
