#include "backend/directory/store/UserStore.h"

#include "backend/directory/FoldedText.h"
#include "backend/directory/store/GuardRails.h"
#include "backend/directory/store/NameKeys.h"
#include "backend/directory/store/ProgressSteps.h"
#include "backend/directory/store/RecordReader.h"
#include "backend/directory/store/TextRules.h"

namespace mindloft {
namespace {

UserRecord ReadUser(const sqlite::Statement& row) {
  return {.id = row.Int(0),
          .version = row.Int(1),
          .name = row.Text(2),
          .fullName = row.Text(3),
          .department = row.Text(4),
          .email = row.Text(5),
          .telephone = row.Text(6),
          .description = row.Text(7),
          .enabled = row.Int(8) != 0,
          .lastLogin = row.Int(9)};
}

JournalSubject SubjectOf(const UserRecord& user) {
  return {"user", user.id, user.name};
}

UserTexts TextsOf(const UserRecord& user) {
  return {user.name, user.fullName, user.description};
}

JsonObject Fields(const UserRecord& user) {
  JsonObject json;
  json.Add("name", user.name);
  json.Add("fullName", user.fullName);
  json.Add("department", user.department);
  json.Add("email", user.email);
  json.Add("telephone", user.telephone);
  json.Add("description", user.description);
  json.Add("enabled", user.enabled);
  return json;
}

/// The same rules for the fields of a new and of a changed user.
void CheckTexts(UserRecord& user) {
  user.name = CheckedName(user.name);
  user.fullName = CheckedLine(user.fullName, "fullName");
  user.department = CheckedLine(user.department, "department");
  user.email = CheckedLine(user.email, "email");
  user.telephone = CheckedLine(user.telephone, "telephone");
  user.description = CheckedText(user.description, "description");
}

std::optional<std::string> Checked(const std::optional<std::string>& line, const char* field) {
  return line ? std::optional(CheckedLine(*line, field)) : std::nullopt;
}

}  // namespace

std::vector<UserRecord> UserStore::Read(const std::vector<ObjectId>& ids) {
  return ReadRecords(parts_.database,
                     "SELECT id, version, name, full_name, department, email, telephone, description, "
                     "enabled, last_login FROM user WHERE id = ?",
                     ids, ReadUser);
}

std::optional<UserRecord> UserStore::Find(ObjectId id) {
  return FirstOf(Read({id}));
}

std::optional<UserRecord> UserStore::FindByName(std::string_view name) {
  ObjectId id = 0;
  {
    auto row = parts_.database.Prepare("SELECT id FROM user WHERE name_key = ?");
    row->BindAll(FoldedText(name));
    if (!row->Step()) return {};
    id = row->Int(0);
  }
  return Find(id);
}

UserRecord UserStore::Require(const ObjectVersion& user) {
  UserRecord stored = Existing(Find(user.id), "user", user.id);
  parts_.journal.RequireVersion(SubjectOf(stored), stored.version, user.version);
  return stored;
}

UserRecord UserStore::Create(const Caller& caller, UserRecord user, const std::string& passwordHash) {
  parts_.rights.Require(caller, ManageUsers);
  CheckTexts(user);
  std::string key = FreeNameKey(parts_.database, "user", user.name);
  user.version = 1;
  user.lastLogin = 0;
  parts_.database
      .Prepare(
          "INSERT INTO user (version, name, name_key, full_name, department, email, telephone, "
          "description, enabled, password, last_login) VALUES (1, ?, ?, ?, ?, ?, ?, ?, ?, ?, 0)")
      ->BindAll(user.name, key, user.fullName, user.department, user.email, user.telephone, user.description,
                user.enabled, passwordHash)
      .Run();
  user.id = parts_.database.LastInsertId();
  index_.Insert(user.id, TextsOf(user));
  parts_.journal.Write(caller.name, "create", SubjectOf(user), {}, Fields(user));
  return user;
}

UserRecord UserStore::Change(const Caller& caller, const UserChange& change) {
  bool own = change.id == caller.user;
  // Everybody keeps their own particulars, but not the name and the lock of the account.
  if (!own || change.name || change.enabled) parts_.rights.Require(caller, ManageUsers);
  const UserRecord before = Require(change);
  if (own && change.enabled && !*change.enabled) throw Error(ErrorNumber::OwnAccount);

  UserRecord user = before;
  FieldChanges changes;
  changes.Put("name", user.name, change.name ? std::optional(CheckedName(*change.name)) : std::nullopt);
  changes.Put("fullName", user.fullName, Checked(change.fullName, "fullName"));
  changes.Put("department", user.department, Checked(change.department, "department"));
  changes.Put("email", user.email, Checked(change.email, "email"));
  changes.Put("telephone", user.telephone, Checked(change.telephone, "telephone"));
  if (change.description) {
    changes.Put("description", user.description,
                std::optional(CheckedText(*change.description, "description")));
  }
  changes.Put("enabled", user.enabled, change.enabled);
  if (changes.Empty()) return user;

  ++user.version;
  parts_.database
      .Prepare(
          "UPDATE user SET version = ?, name = ?, name_key = ?, full_name = ?, department = ?, email = ?, "
          "telephone = ?, description = ?, enabled = ? WHERE id = ?")
      ->BindAll(user.version, user.name, FreeNameKey(parts_.database, "user", user.name, user.id),
                user.fullName, user.department, user.email, user.telephone, user.description, user.enabled,
                user.id)
      .Run();
  index_.Change(user.id, TextsOf(before), TextsOf(user));
  if (before.enabled && !user.enabled) RequireUserManager(parts_.database);
  parts_.journal.Write(caller.name, "change", SubjectOf(user), changes);
  return user;
}

UserRecord UserStore::SetPassword(const Caller& caller, const ObjectVersion& user,
                                  const std::string& passwordHash) {
  if (user.id != caller.user) parts_.rights.Require(caller, ManageUsers);
  UserRecord stored = Require(user);
  parts_.database.Prepare("UPDATE user SET password = ? WHERE id = ?")
      ->BindAll(passwordHash, stored.id)
      .Run();
  stored.version = BumpVersion(stored);
  parts_.journal.Write(caller.name, "password", SubjectOf(stored));
  return stored;
}

Version UserStore::BumpVersion(const UserRecord& user) {
  parts_.database.Prepare("UPDATE user SET version = ? WHERE id = ?")
      ->BindAll(user.version + 1, user.id)
      .Run();
  return user.version + 1;
}

void UserStore::Delete(const Caller& caller, const std::vector<ObjectVersion>& users,
                       const Progress& progress) {
  parts_.rights.Require(caller, DeleteUsers);
  ProgressSteps steps(progress, std::ssize(users));
  std::vector<ObjectId> ids;
  ids.reserve(users.size());
  for (const auto& user : users) {
    if (user.id == caller.user) throw Error(ErrorNumber::OwnAccount);
    DeleteOne(caller, Require(user));
    ids.push_back(user.id);
    steps.Done(1);
  }
  index_.Remove(ids);
  RequireUserManager(parts_.database);
}

void UserStore::DeleteOne(const Caller& caller, const UserRecord& user) {
  // The memberships go with the user; the journal keeps them.
  JsonObject before = Fields(user);
  before.Add("roles", Containers("SELECT c.id, c.name FROM role_member m JOIN role c ON c.id = m.role "
                                 "WHERE m.user = ? ORDER BY c.id",
                                 user.id));
  before.Add("domains", Containers("SELECT c.id, c.name FROM domain_user m JOIN domain c ON c.id = m.domain "
                                   "WHERE m.user = ? ORDER BY c.id",
                                   user.id));
  before.Add("groups", Containers("SELECT c.id, c.name FROM group_member m JOIN grp c ON c.id = m.grp "
                                  "WHERE m.user = ? ORDER BY c.id",
                                  user.id));
  for (const char* sql : {"DELETE FROM role_member WHERE user = ?", "DELETE FROM group_member WHERE user = ?",
                          "DELETE FROM domain_user WHERE user = ?",
                          "DELETE FROM user_configuration WHERE user = ?", "DELETE FROM user WHERE id = ?"}) {
    parts_.database.Prepare(sql)->BindAll(user.id).Run();
  }
  parts_.journal.Write(caller.name, "delete", SubjectOf(user), before);
}

std::vector<std::pair<ObjectId, std::string>> UserStore::Containers(const char* sql, ObjectId user) {
  std::vector<std::pair<ObjectId, std::string>> containers;
  auto row = parts_.database.Prepare(sql);
  row->BindAll(user);
  while (row->Step()) containers.emplace_back(row->Int(0), row->Text(1));
  return containers;
}

}  // namespace mindloft
