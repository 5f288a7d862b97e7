#pragma once

#include <memory>
#include <type_traits>
#include <utility>

#include "backend/directory/SqliteDirectory.h"
#include "backend/directory/index/UserIndex.h"
#include "backend/directory/session/LoginThrottle.h"
#include "backend/directory/session/Rights.h"
#include "backend/directory/session/Sessions.h"
#include "backend/directory/sqlite/Database.h"
#include "backend/directory/store/CollectionVersions.h"
#include "backend/directory/store/CollectionWindows.h"
#include "backend/directory/store/Collections.h"
#include "backend/directory/store/ConfigurationStore.h"
#include "backend/directory/store/DomainStore.h"
#include "backend/directory/store/GroupStore.h"
#include "backend/directory/store/Journal.h"
#include "backend/directory/store/MembershipStore.h"
#include "backend/directory/store/RoleStore.h"
#include "backend/directory/store/StyleStore.h"
#include "backend/directory/store/UserStore.h"

namespace mindloft {

/// Gives each call its transaction and its caller, and hands it on to the store concerned.
class SqliteDirectoryImpl final : public SqliteDirectory {
 public:
  SqliteDirectoryImpl(std::unique_ptr<sqlite::Database> database, LoginThrottle& throttle);

  SessionId Login(std::string_view name, std::string_view password) override;
  void PrepareLogin(std::string_view name, std::string_view password) override;
  void Logout(SessionId session) override;
  void SetLanguage(SessionId session, int language, const Progress& progress) override;
  UserRecord CurrentUser(SessionId session) override;
  std::uint32_t SysPrivileges(SessionId session, ObjectId user) override;
  std::uint32_t DomainPrivileges(SessionId session, ObjectId domain) override;

  std::int64_t Count(SessionId session, const Query& query) override;
  std::vector<UserRecord> UserPage(SessionId session, const Query& query, std::int64_t first,
                                   std::int64_t count) override;
  std::vector<RoleRecord> RolePage(SessionId session, const Query& query, std::int64_t first,
                                   std::int64_t count) override;
  std::vector<DomainRecord> DomainPage(SessionId session, const Query& query, std::int64_t first,
                                       std::int64_t count) override;
  std::vector<GroupRecord> GroupPage(SessionId session, const Query& query, std::int64_t first,
                                     std::int64_t count) override;
  std::vector<StyleRecord> StylePage(SessionId session, const Query& query, std::int64_t first,
                                     std::int64_t count) override;
  std::vector<JournalRecord> JournalPage(SessionId session, const Query& query, std::int64_t first,
                                         std::int64_t count) override;
  std::int64_t FindPrefix(SessionId session, const Query& query, std::string_view prefix,
                          std::int64_t from) override;
  std::int64_t PositionOf(SessionId session, const Query& query, ObjectId object) override;
  std::vector<std::int64_t> PositionsOf(SessionId session, const Query& query,
                                        const std::vector<ObjectId>& objects) override;
  bool Contains(SessionId session, Collection collection, ObjectId scope, ObjectId object) override;
  std::vector<ObjectVersion> VersionsIn(SessionId session, Collection collection, ObjectId scope,
                                        const std::vector<ObjectId>& objects) override;

  std::optional<UserRecord> FindUser(SessionId session, ObjectId id) override;
  std::vector<UserRecord> FindUsers(SessionId session, const std::vector<ObjectId>& ids) override;
  std::optional<RoleRecord> FindRole(SessionId session, ObjectId id) override;
  std::optional<DomainRecord> FindDomain(SessionId session, ObjectId id) override;
  std::optional<GroupRecord> FindGroup(SessionId session, ObjectId id) override;
  std::vector<GroupRecord> FindGroups(SessionId session, const std::vector<ObjectId>& ids) override;
  std::optional<StyleRecord> FindStyle(SessionId session, ObjectId id) override;
  std::optional<UserRecord> FindUserByName(SessionId session, std::string_view name) override;

  UserRecord CreateUser(SessionId session, const UserRecord& user, std::string_view password) override;
  UserRecord ChangeUser(SessionId session, const UserChange& change) override;
  UserRecord SetPassword(SessionId session, const ObjectVersion& user, std::string_view password) override;
  void DeleteUsers(SessionId session, const std::vector<ObjectVersion>& users,
                   const Progress& progress) override;
  DomainRecord CreateDomain(SessionId session, const DomainRecord& domain, const DomainCopy& copy,
                            const Progress& progress) override;
  DomainRecord ChangeDomain(SessionId session, const DomainChange& change) override;
  void DeleteDomain(SessionId session, const ObjectVersion& domain, const Progress& progress) override;
  GroupRecord CreateGroup(SessionId session, const GroupRecord& group) override;
  GroupRecord ChangeGroup(SessionId session, const GroupChange& change) override;
  void DeleteGroups(SessionId session, const std::vector<ObjectVersion>& groups,
                    const Progress& progress) override;
  Version ChangeMembers(SessionId session, const MembershipChange& change, const Progress& progress) override;
  StyleRecord CreateStyle(SessionId session, const StyleRecord& style) override;
  StyleRecord ChangeStyle(SessionId session, const StyleChange& change) override;
  void DeleteStyle(SessionId session, const ObjectVersion& style) override;

  UserConfiguration LoadUserConfiguration(SessionId session) override;
  UserConfiguration StoreUserConfiguration(SessionId session,
                                           const UserConfiguration& configuration) override;

  std::vector<std::string> Check() override;
  DirectoryInfo Info() override;

 private:
  /// Runs `work(caller)` on one state of the file. Orders that are missing are made first: SetLanguage did
  /// so, but a program with another edition of their rules takes them out when it changes users.
  template <typename Work>
  auto Read(SessionId session, Work work) {
    try {
      try {
        return ReadOnce(session, work);
      } catch (const OrdersMissing& missing) {
        index_.Build(missing.rules, {});
      }
      return ReadOnce(session, work);
    } catch (const OrdersMissing&) {
      throw Error(ErrorNumber::DirectoryBusy, "another program takes the orders out");
    } catch (...) {
      throw CurrentError();
    }
  }
  template <typename Work>
  auto ReadOnce(SessionId session, Work& work) {
    sqlite::Snapshot snapshot(*database_);
    return work(sessions_.Require(session));
  }
  /// Runs `work(caller)` in a transaction that is on the disk when this returns.
  template <typename Work>
  auto Write(SessionId session, Work work) {
    try {
      sqlite::Transaction transaction(*database_);
      const Caller caller = sessions_.Require(session);
      if constexpr (std::is_void_v<decltype(work(caller))>) {
        work(caller);
        transaction.Commit();
      } else {
        auto result = work(caller);
        transaction.Commit();
        return result;
      }
    } catch (...) {
      throw CurrentError();
    }
  }
  /// The identifiers of a page of any collection but the journal.
  std::vector<ObjectId> PageIds(const Caller& caller, const Query& query, RecordKind kind, std::int64_t first,
                                std::int64_t count);
  /// The journal is read by those who hold the right only.
  void RequireReadable(const Caller& caller, Collection collection);

  std::unique_ptr<sqlite::Database> database_;
  Journal journal_{*database_};
  Rights rights_{*database_};
  StoreParts parts_{*database_, journal_, rights_};
  UserIndex index_{*database_};
  CollectionWindows windows_{*database_};
  UserStore users_{parts_, index_};
  RoleStore roles_{parts_};
  GroupStore groups_{parts_};
  DomainStore domains_{parts_, groups_};
  StyleStore styles_{parts_};
  MembershipStore memberships_{parts_, users_, roles_, domains_, groups_};
  ConfigurationStore configurations_{parts_};
  Sessions sessions_;
};

}  // namespace mindloft
