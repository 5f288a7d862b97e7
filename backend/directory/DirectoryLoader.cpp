#include "backend/directory/DirectoryLoader.h"

#include <optional>
#include <string>

#include "backend/directory/FoldedText.h"
#include "backend/directory/file/DirectoryFile.h"
#include "backend/directory/file/Schema.h"
#include "backend/directory/index/IndexImage.h"
#include "backend/directory/index/UserIndex.h"
#include "backend/directory/store/GroupStore.h"
#include "backend/directory/store/NameKeys.h"

namespace mindloft {
namespace {

/// Room for the name keys of some million users, which arrive in no order.
constexpr const char* kCache = "PRAGMA cache_size=-65536";

}  // namespace

struct DirectoryLoader::Impl {
  explicit Impl(const std::filesystem::path& file);

  ObjectId Insert(sqlite::Statement& insert) {
    insert.Run();
    return database.LastInsertId();
  }
  void InsertPair(const char* sql, ObjectId owner, ObjectId user) {
    database.Prepare(sql)->BindAll(owner, user).Run();
  }

  std::unique_ptr<sqlite::Database> connection;
  sqlite::Database& database{*connection};
  Journal journal{database};
  Rights rights{database};
  GroupStore groups{StoreParts{database, journal, rights}};
  IndexImage index;
  std::optional<sqlite::Transaction> transaction;
  std::optional<sqlite::Statement> insertUser;
  std::int64_t users = 0, domains = 0, ownGroups = 0, members = 0;
};

DirectoryLoader::Impl::Impl(const std::filesystem::path& file) : connection(OpenDirectoryFile(file)) {
  Migrate(database, Migrations());
  database.Execute(kCache);
  transaction.emplace(database);
  index.AddStoredUsers(database);
  insertUser.emplace(
      database.Handle(),
      "INSERT INTO user(version,name,name_key,full_name,department,email,telephone,description,"
      "enabled,password,last_login) VALUES(1,?,?,?,?,?,?,?,?,'',?)");
}

DirectoryLoader::DirectoryLoader(const std::filesystem::path& file) : impl_(std::make_unique<Impl>(file)) {}

DirectoryLoader::~DirectoryLoader() = default;

ObjectId DirectoryLoader::AddUser(const UserRecord& user) {
  auto folded = FoldedUser::Of(user.name, user.fullName, user.description);
  const auto& nameKey = folded.keys[PlaceOf(Order::Name)];
  impl_->insertUser->BindAll(user.name, nameKey, user.fullName, user.department, user.email, user.telephone,
                             user.description, std::int64_t{user.enabled}, user.lastLogin);
  ObjectId id = 0;
  try {
    id = impl_->Insert(*impl_->insertUser);
  } catch (const Error&) {
    // Asked only now, so that the millions that are free cost nothing.
    FreeNameKey(impl_->database, "user", user.name);
    throw;
  }
  impl_->index.Add(id, folded);
  ++impl_->users;
  return id;
}

ObjectId DirectoryLoader::AddDomain(const DomainRecord& domain) {
  auto insert = impl_->database.Prepare(
      "INSERT INTO domain(version,name,name_key,description,style,disabled) VALUES(1,?,?,?,nullif(?,0),?)");
  insert->BindAll(domain.name, FreeNameKey(impl_->database, "domain", domain.name), domain.description,
                  domain.style, std::int64_t{domain.disabled});
  ObjectId id = impl_->Insert(*insert);
  impl_->groups.Insert(NewAdministratorsGroup(id));
  ++impl_->domains;
  return id;
}

ObjectId DirectoryLoader::AddGroup(const GroupRecord& group) {
  ++impl_->ownGroups;
  return impl_->groups.Insert(group);
}

void DirectoryLoader::AddDomainUser(ObjectId domain, ObjectId user) {
  impl_->InsertPair("INSERT INTO domain_user(domain,user) VALUES(?,?)", domain, user);
  ++impl_->members;
}

void DirectoryLoader::AddGroupMember(ObjectId group, ObjectId user) {
  impl_->InsertPair("INSERT INTO group_member(grp,user) VALUES(?,?)", group, user);
  ++impl_->members;
}

void DirectoryLoader::AddRoleMember(ObjectId role, ObjectId user) {
  impl_->InsertPair("INSERT INTO role_member(role,user) VALUES(?,?)", role, user);
  ++impl_->members;
}

void DirectoryLoader::Finish() {
  impl_->index.Write(impl_->database, UserIndex::kBlockSize);
  JsonObject after;
  after.Add("users", impl_->users);
  after.Add("domains", impl_->domains);
  after.Add("groups", impl_->ownGroups);
  after.Add("memberships", impl_->members);
  impl_->journal.Write("", "load", {"user", 0, ""}, {}, after);
  impl_->transaction->Commit();
}

}  // namespace mindloft
