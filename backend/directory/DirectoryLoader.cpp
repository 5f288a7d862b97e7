#include "backend/directory/DirectoryLoader.h"

#include <optional>
#include <string>

#include "backend/directory/FoldedText.h"
#include "backend/directory/file/DirectoryFile.h"
#include "backend/directory/file/Schema.h"
#include "backend/directory/index/IndexImage.h"
#include "backend/directory/index/Packed.h"
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
  /// The engine's own checks of references cost as much as the rows; bits in memory tell the same.
  void InsertMember(sqlite::Statement& insert, const IdSet& owners, ObjectId owner, ObjectId user) {
    Require(owners, owner);
    Require(userIds, user);
    insert.BindAll(owner, user).Run();
    ++members;
  }
  static void Require(const IdSet& known, ObjectId id) {
    if (!known.Has(PackId(id))) throw Error(ErrorNumber::ObjectNotFound, "object " + std::to_string(id));
  }
  IdSet Ids(const char* select) {
    IdSet ids;
    auto row = database.Prepare(select);
    while (row->Step()) ids.Add(PackId(row->Int(0)));
    return ids;
  }

  std::unique_ptr<sqlite::Database> connection;
  sqlite::Database& database{*connection};
  Journal journal{database};
  Rights rights{database};
  GroupStore groups{StoreParts{database, journal, rights}};
  IndexImage index;
  std::optional<sqlite::Transaction> transaction;
  std::optional<sqlite::Statement> insertUser;
  IdSet userIds, domainIds, groupIds, roleIds, styleIds;
  sqlite::Statement insertDomainUser{database.Handle(), "INSERT INTO domain_user(domain,user) VALUES(?,?)"};
  sqlite::Statement insertGroupMember{database.Handle(), "INSERT INTO group_member(grp,user) VALUES(?,?)"};
  sqlite::Statement insertRoleMember{database.Handle(), "INSERT INTO role_member(role,user) VALUES(?,?)"};
  std::int64_t users = 0, domains = 0, ownGroups = 0, members = 0;
};

DirectoryLoader::Impl::Impl(const std::filesystem::path& file) : connection(OpenDirectoryFile(file)) {
  Migrate(database, Migrations());
  database.Execute(kCache);
  database.Execute("PRAGMA foreign_keys=OFF");
  transaction.emplace(database);
  index.AddStoredUsers(database);
  userIds = Ids("SELECT id FROM user");
  domainIds = Ids("SELECT id FROM domain");
  groupIds = Ids("SELECT id FROM grp");
  roleIds = Ids("SELECT id FROM role");
  styleIds = Ids("SELECT id FROM style");
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
  impl_->userIds.Add(PackId(id));
  ++impl_->users;
  return id;
}

ObjectId DirectoryLoader::AddDomain(const DomainRecord& domain) {
  if (domain.style != 0) impl_->Require(impl_->styleIds, domain.style);
  auto insert = impl_->database.Prepare(
      "INSERT INTO domain(version,name,name_key,description,style,disabled) VALUES(1,?,?,?,nullif(?,0),?)");
  insert->BindAll(domain.name, FreeNameKey(impl_->database, "domain", domain.name), domain.description,
                  domain.style, std::int64_t{domain.disabled});
  ObjectId id = impl_->Insert(*insert);
  impl_->domainIds.Add(PackId(id));
  impl_->groupIds.Add(PackId(impl_->groups.Insert(NewAdministratorsGroup(id))));
  ++impl_->domains;
  return id;
}

ObjectId DirectoryLoader::AdministratorsGroup(ObjectId domain) {
  auto find = impl_->database.Prepare("SELECT id FROM grp WHERE domain=? AND kind=?");
  find->BindAll(domain, std::int64_t{GroupKind::AdministratorsGroup});
  if (!find->Step()) throw Error(ErrorNumber::ObjectNotFound);
  return find->Int(0);
}

ObjectId DirectoryLoader::AddGroup(const GroupRecord& group) {
  impl_->Require(impl_->domainIds, group.domain);
  ObjectId id = impl_->groups.Insert(group);
  impl_->groupIds.Add(PackId(id));
  ++impl_->ownGroups;
  return id;
}

void DirectoryLoader::AddDomainUser(ObjectId domain, ObjectId user) {
  impl_->InsertMember(impl_->insertDomainUser, impl_->domainIds, domain, user);
}

void DirectoryLoader::AddGroupMember(ObjectId group, ObjectId user) {
  impl_->InsertMember(impl_->insertGroupMember, impl_->groupIds, group, user);
}

void DirectoryLoader::AddRoleMember(ObjectId role, ObjectId user) {
  impl_->InsertMember(impl_->insertRoleMember, impl_->roleIds, role, user);
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
