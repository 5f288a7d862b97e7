#include "backend/directory/SqliteDirectoryImpl.h"

#include "backend/directory/DirectoryCheck.h"
#include "backend/directory/session/PasswordHash.h"

namespace mindloft {

SqliteDirectoryImpl::SqliteDirectoryImpl(std::unique_ptr<sqlite::Database> database, LoginThrottle& throttle)
    : database_(std::move(database)), sessions_(*database_, journal_, throttle) {}

SessionId SqliteDirectoryImpl::Login(std::string_view name, std::string_view password) {
  try {
    return sessions_.Login(name, password);
  } catch (...) {
    throw CurrentError();
  }
}

void SqliteDirectoryImpl::PrepareLogin(std::string_view name, std::string_view password) {
  try {
    sessions_.Prepare(name, password);
  } catch (...) {
    throw CurrentError();
  }
}

void SqliteDirectoryImpl::Logout(SessionId session) {
  sessions_.Logout(session);
}

void SqliteDirectoryImpl::SetLanguage(SessionId session, int language, const Progress& progress) {
  const LanguageRules rules = RulesOf(language);
  Read(session, [](const Caller&) {});
  try {
    if (!index_.Has(rules)) index_.Build(rules, progress);
    sessions_.SetRules(session, rules);
  } catch (...) {
    throw CurrentError();
  }
}

UserRecord SqliteDirectoryImpl::CurrentUser(SessionId session) {
  return Read(session, [&](const Caller& caller) { return users_.Find(caller.user).value(); });
}

std::uint32_t SqliteDirectoryImpl::SysPrivileges(SessionId session, ObjectId user) {
  return Read(session, [&](const Caller&) { return rights_.System(user); });
}

std::uint32_t SqliteDirectoryImpl::DomainPrivileges(SessionId session, ObjectId domain) {
  return Read(session, [&](const Caller& caller) { return rights_.InDomain(caller.user, domain); });
}

// Single objects

std::optional<UserRecord> SqliteDirectoryImpl::FindUser(SessionId session, ObjectId id) {
  return Read(session, [&](const Caller&) { return users_.Find(id); });
}

std::vector<UserRecord> SqliteDirectoryImpl::FindUsers(SessionId session, const std::vector<ObjectId>& ids) {
  return Read(session, [&](const Caller&) { return users_.Read(ids); });
}

std::optional<RoleRecord> SqliteDirectoryImpl::FindRole(SessionId session, ObjectId id) {
  return Read(session, [&](const Caller&) { return roles_.Find(id); });
}

std::optional<DomainRecord> SqliteDirectoryImpl::FindDomain(SessionId session, ObjectId id) {
  return Read(session, [&](const Caller&) { return domains_.Find(id); });
}

std::optional<GroupRecord> SqliteDirectoryImpl::FindGroup(SessionId session, ObjectId id) {
  return Read(session, [&](const Caller&) { return groups_.Find(id); });
}

std::vector<GroupRecord> SqliteDirectoryImpl::FindGroups(SessionId session,
                                                         const std::vector<ObjectId>& ids) {
  return Read(session, [&](const Caller&) { return groups_.Read(ids); });
}

std::optional<StyleRecord> SqliteDirectoryImpl::FindStyle(SessionId session, ObjectId id) {
  return Read(session, [&](const Caller&) { return styles_.Find(id); });
}

std::optional<UserRecord> SqliteDirectoryImpl::FindUserByName(SessionId session, std::string_view name) {
  return Read(session, [&](const Caller&) { return users_.FindByName(name); });
}

// Changes

UserRecord SqliteDirectoryImpl::CreateUser(SessionId session, const UserRecord& user,
                                           std::string_view password) {
  std::string hash;
  if (!password.empty()) {
    // The work of hashing is done before the file is locked.
    RequireGoodPassword(password);
    hash = HashPassword(password);
  }
  return Write(session, [&](const Caller& caller) { return users_.Create(caller, user, hash); });
}

UserRecord SqliteDirectoryImpl::ChangeUser(SessionId session, const UserChange& change) {
  return Write(session, [&](const Caller& caller) { return users_.Change(caller, change); });
}

UserRecord SqliteDirectoryImpl::SetPassword(SessionId session, const ObjectVersion& user,
                                            std::string_view password) {
  RequireGoodPassword(password);
  const std::string hash = HashPassword(password);
  return Write(session, [&](const Caller& caller) { return users_.SetPassword(caller, user, hash); });
}

void SqliteDirectoryImpl::DeleteUsers(SessionId session, const std::vector<ObjectVersion>& users,
                                      const Progress& progress) {
  Write(session, [&](const Caller& caller) { users_.Delete(caller, users, progress); });
}

DomainRecord SqliteDirectoryImpl::CreateDomain(SessionId session, const DomainRecord& domain,
                                               const DomainCopy& copy, const Progress& progress) {
  return Write(session,
               [&](const Caller& caller) { return domains_.Create(caller, domain, copy, progress); });
}

DomainRecord SqliteDirectoryImpl::ChangeDomain(SessionId session, const DomainChange& change) {
  return Write(session, [&](const Caller& caller) { return domains_.Change(caller, change); });
}

void SqliteDirectoryImpl::DeleteDomain(SessionId session, const ObjectVersion& domain,
                                       const Progress& progress) {
  Write(session, [&](const Caller& caller) { domains_.Delete(caller, domain, progress); });
}

GroupRecord SqliteDirectoryImpl::CreateGroup(SessionId session, const GroupRecord& group) {
  return Write(session, [&](const Caller& caller) { return groups_.Create(caller, group); });
}

GroupRecord SqliteDirectoryImpl::ChangeGroup(SessionId session, const GroupChange& change) {
  return Write(session, [&](const Caller& caller) { return groups_.Change(caller, change); });
}

void SqliteDirectoryImpl::DeleteGroups(SessionId session, const std::vector<ObjectVersion>& groups,
                                       const Progress& progress) {
  Write(session, [&](const Caller& caller) { groups_.Delete(caller, groups, progress); });
}

Version SqliteDirectoryImpl::ChangeMembers(SessionId session, const MembershipChange& change,
                                           const Progress& progress) {
  return Write(session, [&](const Caller& caller) { return memberships_.Change(caller, change, progress); });
}

StyleRecord SqliteDirectoryImpl::CreateStyle(SessionId session, const StyleRecord& style) {
  return Write(session, [&](const Caller& caller) { return styles_.Create(caller, style); });
}

StyleRecord SqliteDirectoryImpl::ChangeStyle(SessionId session, const StyleChange& change) {
  return Write(session, [&](const Caller& caller) { return styles_.Change(caller, change); });
}

void SqliteDirectoryImpl::DeleteStyle(SessionId session, const ObjectVersion& style) {
  Write(session, [&](const Caller& caller) { styles_.Delete(caller, style); });
}

SqliteDirectoryImpl::UserConfiguration SqliteDirectoryImpl::LoadUserConfiguration(SessionId session) {
  return Read(session, [&](const Caller& caller) { return configurations_.Load(caller); });
}

SqliteDirectoryImpl::UserConfiguration SqliteDirectoryImpl::StoreUserConfiguration(
    SessionId session, const UserConfiguration& configuration) {
  return Write(session, [&](const Caller& caller) { return configurations_.Store(caller, configuration); });
}

// The whole file

std::vector<std::string> SqliteDirectoryImpl::Check() {
  try {
    return CheckDirectory(*database_, index_);
  } catch (...) {
    throw CurrentError();
  }
}

DirectoryInfo SqliteDirectoryImpl::Info() {
  try {
    return CountObjects(*database_);
  } catch (...) {
    throw CurrentError();
  }
}

}  // namespace mindloft
