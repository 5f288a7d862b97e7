#include "backend/directory/index/Selections.h"

#include <algorithm>
#include <iterator>

#include "backend/directory/index/Packed.h"

namespace mindloft {
namespace {

// Enough for going back through the last typed letters; at a million users about 140 KB each.
constexpr std::size_t kRemembered = 8;

constexpr const char* kDomainUsers = "SELECT user FROM domain_user WHERE domain=?";
constexpr const char* kGroupMembers = "SELECT user FROM group_member WHERE grp=?";
constexpr const char* kRoleMembers = "SELECT user FROM role_member WHERE role=?";
constexpr const char* kUsersOfGroupsDomain =
    "SELECT user FROM domain_user WHERE domain=(SELECT domain FROM grp WHERE id=?)";

}  // namespace

Selections::Entry* Selections::Find(const Key& key) {
  auto found = std::find_if(remembered_.begin(), remembered_.end(),
                            [&](const Entry& entry) { return entry.key == key; });
  if (found == remembered_.end()) return nullptr;
  remembered_.splice(remembered_.begin(), remembered_, found);
  return &remembered_.front();
}

Selection& Selections::Get(const Key& key) {
  if (auto* entry = Find(key)) return entry->selection;
  Entry entry{key, Selection(Select(key))};
  remembered_.push_front(std::move(entry));
  if (remembered_.size() > kRemembered) remembered_.pop_back();
  return remembered_.front().selection;
}

IdSet Selections::Select(const Key& key) {
  if (key.collection == Collection::Users) return key.filter.empty() ? AllUsers() : Search(key.filter);
  if (key.filter.empty()) return Scoped(key.collection, key.scope);
  IdSet both = Get({key.collection, key.scope, {}}).Ids();
  both.KeepOnly(Get({Collection::Users, 0, key.filter}).Ids());
  return both;
}

IdSet Selections::Search(const std::string& filter) {
  // Whoever types one more letter looks among the users found so far.
  const Entry* wider = nullptr;
  for (const auto& entry : remembered_) {
    if (entry.key.collection != Collection::Users || entry.key.filter.empty()) continue;
    if (filter.find(entry.key.filter) == std::string::npos) continue;
    if (!wider || entry.selection.Count() < wider->selection.Count()) wider = &entry;
  }
  return texts_.Search(filter, wider ? &wider->selection.Ids() : nullptr);
}

IdSet Selections::Scoped(Collection collection, ObjectId scope) {
  IdSet ids;
  switch (collection) {
    case Collection::DomainUsers:
      return Members(kDomainUsers, scope);
    case Collection::GroupMembers:
      return Members(kGroupMembers, scope);
    case Collection::RoleMembers:
      return Members(kRoleMembers, scope);
    case Collection::UsersWithoutDomain:
      ids = Get({}).Ids();
      ids.Take(Members(kDomainUsers, scope));
      return ids;
    case Collection::UsersWithoutGroup:
      ids = Members(kUsersOfGroupsDomain, scope);
      ids.Take(Members(kGroupMembers, scope));
      return ids;
    case Collection::UsersWithoutRole:
      ids = Get({}).Ids();
      ids.Take(Members(kRoleMembers, scope));
      return ids;
    default:
      throw Error(ErrorNumber::TypeMismatch, "the collection holds no users");
  }
}

IdSet Selections::Members(const char* sql, ObjectId scope) {
  auto select = database_.Prepare(sql);
  select->BindAll(scope);
  IdSet ids;
  while (select->Step()) ids.Add(PackId(select->Int(0)));
  return ids;
}

IdSet Selections::AllUsers() {
  IdSet ids;
  for (std::size_t block = 0; block < users_.Blocks().size(); ++block) {
    for (PackedId id : users_.Ids(block)) ids.Add(id);
  }
  return ids;
}

}  // namespace mindloft
