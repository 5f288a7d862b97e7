#include "backend/directory/store/MembershipStore.h"

#include <set>

#include "backend/directory/store/GuardRails.h"
#include "backend/directory/store/ProgressSteps.h"
#include "backend/directory/store/RecordReader.h"

namespace mindloft {
namespace {

const char* const kContainerTables[] = {"role", "domain", "grp"};

}  // namespace

MembershipStore::Container MembershipStore::ContainerOf(Membership membership) {
  switch (membership) {
    case Membership::RoleMembers:
    case Membership::UserRoles:
      return Container::Role;
    case Membership::DomainUsers:
    case Membership::UserDomains:
      return Container::Domain;
    case Membership::GroupMembers:
    case Membership::UserGroups:
      break;
  }
  return Container::Group;
}

bool MembershipStore::OwnedByUser(Membership membership) {
  return membership == Membership::UserRoles || membership == Membership::UserDomains ||
         membership == Membership::UserGroups;
}

Version MembershipStore::Change(const Caller& caller, const MembershipChange& change,
                                const Progress& progress) {
  const Container container = ContainerOf(change.membership);
  const bool ownedByUser = OwnedByUser(change.membership);
  if (!ownedByUser || container == Container::Role) RequireRight(caller, container, change.owner.id);
  const Owner owner = RequireOwner(change);
  if (ownedByUser && container != Container::Role) {
    std::set<ObjectId> containers(change.additions.begin(), change.additions.end());
    containers.insert(change.removals.begin(), change.removals.end());
    for (ObjectId id : containers) RequireRight(caller, container, id);
  }

  const char* memberTable = ownedByUser ? kContainerTables[static_cast<int>(container)] : "user";
  Named removed, added;
  ProgressSteps steps(progress, static_cast<std::int64_t>(change.removals.size() + change.additions.size()));
  auto apply = [&](const std::vector<ObjectId>& ids, auto step, Named& done) {
    for (ObjectId id : ids) {
      ObjectId inside = ownedByUser ? id : owner.subject.id;
      ObjectId user = ownedByUser ? owner.subject.id : id;
      if ((this->*step)(container, inside, user)) done.emplace_back(id, NameOf(memberTable, id));
      steps.Done(1);
    }
  };
  apply(change.removals, &MembershipStore::Remove, removed);
  apply(change.additions, &MembershipStore::Add, added);
  if (removed.empty() && added.empty()) return owner.version;
  if (container == Container::Role && !removed.empty()) RequireUserManager(parts_.database);

  parts_.database.Prepare(std::string("UPDATE ") + owner.table + " SET version = version + 1 WHERE id = ?")
      ->BindAll(owner.subject.id)
      .Run();
  const char* const fields[] = {"roles", "domains", "groups"};
  const char* field = ownedByUser ? fields[static_cast<int>(container)] : "members";
  JsonObject before, after;
  if (!removed.empty()) before.Add(field, removed);
  if (!added.empty()) after.Add(field, added);
  parts_.journal.Write(caller.name, "members", owner.subject, before, after);
  return owner.version + 1;
}

MembershipStore::Owner MembershipStore::RequireOwner(const MembershipChange& change) {
  if (OwnedByUser(change.membership)) {
    UserRecord user = users_.Require(change.owner);
    return {{"user", user.id, user.name}, "user", user.version};
  }
  switch (ContainerOf(change.membership)) {
    case Container::Role: {
      RoleRecord role = Existing(roles_.Find(change.owner.id), "role", change.owner.id);
      parts_.journal.RequireVersion({"role", role.id, role.name}, role.version, change.owner.version);
      return {{"role", role.id, role.name}, "role", role.version};
    }
    case Container::Domain: {
      DomainRecord domain = domains_.Require(change.owner);
      return {{"domain users", domain.id, domain.name}, "domain", domain.version};
    }
    case Container::Group:
      break;
  }
  GroupRecord group = groups_.Require(change.owner);
  return {{"group", group.id, group.name}, "grp", group.version};
}

void MembershipStore::RequireRight(const Caller& caller, Container container, ObjectId id) {
  switch (container) {
    case Container::Role:
      return parts_.rights.Require(caller, ManageRoles);
    case Container::Domain:
      return parts_.rights.RequireInDomain(caller, id, ManageDomainUsers);
    case Container::Group:
      break;
  }
  GroupRecord group = Existing(groups_.Find(id), "group", id);
  parts_.rights.RequireInDomain(caller, group.domain, ManageDomainGroups);
}

std::string MembershipStore::NameOf(const char* table, ObjectId id) {
  auto row = parts_.database.Prepare(std::string("SELECT name FROM ") + table + " WHERE id = ?");
  row->BindAll(id);
  if (!row->Step()) {
    throw Error(ErrorNumber::ObjectNotFound, std::string(table) + ' ' + std::to_string(id));
  }
  return row->Text(0);
}

bool MembershipStore::Add(Container container, ObjectId id, ObjectId user) {
  static constexpr const char* kSql[] = {
      "INSERT INTO role_member (role, user) VALUES (?, ?) ON CONFLICT DO NOTHING",
      "INSERT INTO domain_user (domain, user) VALUES (?, ?) ON CONFLICT DO NOTHING",
      "INSERT INTO group_member (grp, user) VALUES (?, ?) ON CONFLICT DO NOTHING"};
  NameOf("user", user);
  NameOf(kContainerTables[static_cast<int>(container)], id);
  if (container == Container::Group) {
    auto access = parts_.database.Prepare(
        "SELECT 1 FROM grp g JOIN domain_user d ON d.domain = g.domain WHERE g.id = ? AND d.user = ?");
    access->BindAll(id, user);
    if (!access->Step()) {
      throw Error(
          ErrorNumber::ObjectNotFound,
          "user " + std::to_string(user) + " has no access to the domain of group " + std::to_string(id));
    }
  }
  parts_.database.Prepare(kSql[static_cast<int>(container)])->BindAll(id, user).Run();
  return parts_.database.Changes() > 0;
}

bool MembershipStore::Remove(Container container, ObjectId id, ObjectId user) {
  static constexpr const char* kSql[] = {"DELETE FROM role_member WHERE role = ? AND user = ?",
                                         "DELETE FROM domain_user WHERE domain = ? AND user = ?",
                                         "DELETE FROM group_member WHERE grp = ? AND user = ?"};
  parts_.database.Prepare(kSql[static_cast<int>(container)])->BindAll(id, user).Run();
  bool removed = parts_.database.Changes() > 0;
  if (removed && container == Container::Domain) {
    parts_.database
        .Prepare(
            "DELETE FROM group_member WHERE user = ?2 AND grp IN "
            "(SELECT id FROM grp WHERE domain = ?1)")
        ->BindAll(id, user)
        .Run();
  }
  return removed;
}

}  // namespace mindloft
