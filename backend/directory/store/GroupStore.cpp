#include "backend/directory/store/GroupStore.h"

#include "backend/directory/store/NameKeys.h"
#include "backend/directory/store/RecordReader.h"
#include "backend/directory/store/SlicedRemoval.h"
#include "backend/directory/store/TextRules.h"

namespace mindloft {
namespace {

GroupRecord ReadGroup(const sqlite::Statement& row) {
  return {.id = row.Int(0),
          .version = row.Int(1),
          .domain = row.Int(2),
          .kind = static_cast<std::int32_t>(row.Int(3)),
          .builtIn = row.Int(4) != 0,
          .editable = row.Int(5) != 0,
          .domainPrivileges = static_cast<std::uint32_t>(row.Int(6)),
          .name = row.Text(7),
          .description = row.Text(8)};
}

JournalSubject SubjectOf(const GroupRecord& group) {
  return {"group", group.id, group.name};
}

JsonObject Fields(const GroupRecord& group) {
  JsonObject json;
  json.Add("domain", group.domain);
  json.Add("kind", std::int64_t{group.kind});
  json.Add("name", group.name);
  json.Add("description", group.description);
  json.Add("domainPrivileges", group.domainPrivileges);
  return json;
}

void RequireKnownPrivileges(std::uint32_t mask) {
  if (mask & ~std::uint32_t{AllDomainPrivileges}) {
    throw Error(ErrorNumber::TypeMismatch, "unknown domain privileges " + std::to_string(mask));
  }
}

void RequireChangeable(const GroupRecord& group, const FieldChanges& changes, const GroupRecord& before) {
  bool fixed = !before.editable || (before.builtIn && group.name != before.name) ||
               (before.kind == AdministratorsGroup && group.domainPrivileges != before.domainPrivileges);
  if (fixed && !changes.Empty()) throw Error(ErrorNumber::BuiltInObject, {}, {before.name});
}

}  // namespace

GroupRecord NewAdministratorsGroup(ObjectId domain) {
  return {.domain = domain,
          .kind = AdministratorsGroup,
          .builtIn = true,
          .editable = true,
          .domainPrivileges = AllDomainPrivileges,
          .name = "Administrators",
          .description = "Manage this knowledge domain"};
}

std::vector<GroupRecord> GroupStore::Read(const std::vector<ObjectId>& ids) {
  return ReadRecords(parts_.database,
                     "SELECT id, version, domain, kind, built_in, editable, privileges, name, description "
                     "FROM grp WHERE id = ?",
                     ids, ReadGroup);
}

std::optional<GroupRecord> GroupStore::Find(ObjectId id) {
  return FirstOf(Read({id}));
}

GroupRecord GroupStore::Require(const ObjectVersion& group) {
  GroupRecord stored = Existing(Find(group.id), "group", group.id);
  parts_.journal.RequireVersion(SubjectOf(stored), stored.version, group.version);
  return stored;
}

ObjectId GroupStore::Insert(const GroupRecord& group) {
  parts_.database
      .Prepare(
          "INSERT INTO grp (version, domain, kind, built_in, editable, privileges, name, name_key, "
          "description) VALUES (1, ?, ?, ?, ?, ?, ?, ?, ?)")
      ->BindAll(group.domain, group.kind, group.builtIn, group.editable, group.domainPrivileges, group.name,
                FreeNameKey(parts_.database, "grp", group.name, 0, group.domain), group.description)
      .Run();
  return parts_.database.LastInsertId();
}

GroupRecord GroupStore::Create(const Caller& caller, GroupRecord group) {
  parts_.rights.RequireInDomain(caller, group.domain, ManageDomainGroups);
  {
    auto domain = parts_.database.Prepare("SELECT 1 FROM domain WHERE id = ?");
    domain->BindAll(group.domain);
    if (!domain->Step()) {
      throw Error(ErrorNumber::ObjectNotFound, "domain " + std::to_string(group.domain));
    }
  }
  if (group.kind == AdministratorsGroup) throw Error(ErrorNumber::BuiltInObject, {}, {group.name});
  group.name = CheckedName(group.name);
  group.description = CheckedText(group.description, "description");
  RequireKnownPrivileges(group.domainPrivileges);
  group.version = 1;
  group.builtIn = false;
  group.id = Insert(group);
  parts_.journal.Write(caller.name, "create", SubjectOf(group), {}, Fields(group));
  return group;
}

GroupRecord GroupStore::Change(const Caller& caller, const GroupChange& change) {
  // Whose right it is depends on the group's domain; a group that is gone has none.
  GroupRecord group = Existing(Find(change.id), "group", change.id);
  parts_.rights.RequireInDomain(caller, group.domain, ManageDomainGroups);
  group = Require(change);
  const GroupRecord before = group;
  FieldChanges changes;
  if (change.name) changes.Put("name", group.name, std::optional(CheckedName(*change.name)));
  if (change.description) {
    changes.Put("description", group.description,
                std::optional(CheckedText(*change.description, "description")));
  }
  if (change.domainPrivileges) RequireKnownPrivileges(*change.domainPrivileges);
  changes.Put("domainPrivileges", group.domainPrivileges, change.domainPrivileges);
  RequireChangeable(group, changes, before);
  if (changes.Empty()) return group;

  ++group.version;
  parts_.database
      .Prepare(
          "UPDATE grp SET version = ?, name = ?, name_key = ?, description = ?, privileges = ? "
          "WHERE id = ?")
      ->BindAll(group.version, group.name,
                FreeNameKey(parts_.database, "grp", group.name, group.id, group.domain), group.description,
                group.domainPrivileges, group.id)
      .Run();
  parts_.journal.Write(caller.name, "change", SubjectOf(group), changes);
  return group;
}

void GroupStore::Delete(const Caller& caller, const std::vector<ObjectVersion>& groups,
                        const Progress& progress) {
  std::int64_t rows = std::ssize(groups);
  for (const auto& group : groups)
    rows += CountFor(parts_.database, "SELECT count(*) FROM group_member WHERE grp = ?", group.id);
  ProgressSteps steps(progress, rows);
  for (const auto& group : groups) {
    const GroupRecord stored = Existing(Find(group.id), "group", group.id);
    parts_.rights.RequireInDomain(caller, stored.domain, ManageDomainGroups);
    Require(group);
    if (stored.builtIn) throw Error(ErrorNumber::BuiltInObject, {}, {stored.name});
    DeleteOne(caller, stored, steps);
  }
}

void GroupStore::DeleteOne(const Caller& caller, const GroupRecord& group, ProgressSteps& steps) {
  JsonObject before = Fields(group);
  std::vector<std::pair<ObjectId, std::string>> members;
  {
    auto row = parts_.database.Prepare(
        "SELECT u.id, u.name FROM group_member m JOIN user u ON u.id = m.user WHERE m.grp = ?");
    row->BindAll(group.id);
    while (row->Step()) members.emplace_back(row->Int(0), row->Text(1));
  }
  before.Add("members", members);
  RemoveGroupMembers(parts_.database, group.id, steps);
  parts_.database.Prepare("DELETE FROM grp WHERE id = ?")->BindAll(group.id).Run();
  parts_.journal.Write(caller.name, "delete", SubjectOf(group), before);
  steps.Done(1);
}

}  // namespace mindloft
