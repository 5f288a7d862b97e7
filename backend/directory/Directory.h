#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "backend/directory/Changes.h"
#include "backend/directory/Privileges.h"
#include "backend/directory/Query.h"
#include "backend/directory/Records.h"

namespace mindloft {

/// Names a login; valid until Logout.
using SessionId = std::uint64_t;

/// The one door to the stored directory. Every call is made in a session and checks its rights; every change
/// is one transaction that is on the disk when the call returns. Failures are Errors.
///
/// An implementation may be on the other side of a network: nothing that crosses the door refers to the
/// store. One thread at a time.
class Directory {
 public:
  /// The least number of characters of a password, and the greatest number of its UTF-8 bytes.
  static constexpr int kMinimumPasswordLength = 12;
  static constexpr int kMaximumPasswordBytes = 1024;

  virtual ~Directory() = default;

  // Sessions
  // ------------------------------------------------------------------------------------------------------

  /// Throws LoginFailed for a wrong name, a wrong password and an account that is disabled alike, after the
  /// same work; LoginDelayed while repeated failures are being slowed.
  virtual SessionId Login(std::string_view name, std::string_view password) = 0;
  /// Does the costly part of a Login with the same name and password ahead, on any thread; no other call runs
  /// beside it. Whether they are right shows at Login only.
  virtual void PrepareLogin(std::string_view name, std::string_view password) = 0;
  virtual void Logout(SessionId session) = 0;
  /// From now on names are ordered and searched by the rules of this language in the session (a Windows
  /// identifier: 1033 English, 2052 simplified Chinese, ...); until then by those that English and many
  /// others share. The first use of some rules in a directory sorts all users, which takes seconds for a
  /// million of them. The session's rules stay as they were when it fails: Cancelled when `progress` says so,
  /// CollationMissing when this computer cannot order by them.
  virtual void SetLanguage(SessionId session, int language, const Progress& progress) = 0;
  /// The user who is logged in, as stored now.
  virtual UserRecord CurrentUser(SessionId session) = 0;
  /// The system privileges of a user: those of all roles that hold the user.
  virtual std::uint32_t SysPrivileges(SessionId session, ObjectId user) = 0;
  /// The domain privileges of the logged-in user: those of all groups of the domain that hold the user.
  virtual std::uint32_t DomainPrivileges(SessionId session, ObjectId domain) = 0;

  // Windows on collections
  // ----------------------------------------------------------------------------------------

  virtual std::int64_t Count(SessionId session, const Query& query) = 0;
  /// At most `count` rows from position `first` (0-based); fewer at the end. Each kind of record has its own
  /// page call; a query for another kind is an Error.
  virtual std::vector<UserRecord> UserPage(SessionId session, const Query& query, std::int64_t first,
                                           std::int64_t count) = 0;
  virtual std::vector<RoleRecord> RolePage(SessionId session, const Query& query, std::int64_t first,
                                           std::int64_t count) = 0;
  virtual std::vector<DomainRecord> DomainPage(SessionId session, const Query& query, std::int64_t first,
                                               std::int64_t count) = 0;
  virtual std::vector<GroupRecord> GroupPage(SessionId session, const Query& query, std::int64_t first,
                                             std::int64_t count) = 0;
  virtual std::vector<StyleRecord> StylePage(SessionId session, const Query& query, std::int64_t first,
                                             std::int64_t count) = 0;
  virtual std::vector<JournalRecord> JournalPage(SessionId session, const Query& query, std::int64_t first,
                                                 std::int64_t count) = 0;
  /// The position of the first row, from `from` on and then from the top, whose text in the query's order
  /// starts with `prefix` (without regard to case); -1 when there is none.
  virtual std::int64_t FindPrefix(SessionId session, const Query& query, std::string_view prefix,
                                  std::int64_t from) = 0;
  /// The position of an object in a window; -1 when it is not in it.
  virtual std::int64_t PositionOf(SessionId session, const Query& query, ObjectId object) = 0;
  /// The same for many objects, in the given order: one question takes no longer than reading the order once.
  virtual std::vector<std::int64_t> PositionsOf(SessionId session, const Query& query,
                                                const std::vector<ObjectId>& objects) = 0;
  /// Whether the object belongs to the collection (the query's filter and order do not matter).
  virtual bool Contains(SessionId session, Collection collection, ObjectId scope, ObjectId object) = 0;
  /// Those of the objects that belong to the collection, in the given order and with their versions: what is
  /// selected in a list, in one call however much it is.
  virtual std::vector<ObjectVersion> VersionsIn(SessionId session, Collection collection, ObjectId scope,
                                                const std::vector<ObjectId>& objects) = 0;

  // Single objects
  // ------------------------------------------------------------------------------------------------

  virtual std::optional<UserRecord> FindUser(SessionId session, ObjectId id) = 0;
  /// Those that there are, in the given order; likewise FindGroups.
  virtual std::vector<UserRecord> FindUsers(SessionId session, const std::vector<ObjectId>& ids) = 0;
  virtual std::optional<RoleRecord> FindRole(SessionId session, ObjectId id) = 0;
  virtual std::optional<DomainRecord> FindDomain(SessionId session, ObjectId id) = 0;
  virtual std::optional<GroupRecord> FindGroup(SessionId session, ObjectId id) = 0;
  virtual std::vector<GroupRecord> FindGroups(SessionId session, const std::vector<ObjectId>& ids) = 0;
  virtual std::optional<StyleRecord> FindStyle(SessionId session, ObjectId id) = 0;
  /// By login name, without regard to case.
  virtual std::optional<UserRecord> FindUserByName(SessionId session, std::string_view name) = 0;

  // Changes: each returns the object as it is stored now
  // ----------------------------------------------------------- Conflict when the object changed since the
  // given version; ObjectNotFound when it is gone.

  virtual UserRecord CreateUser(SessionId session, const UserRecord& user, std::string_view password) = 0;
  virtual UserRecord ChangeUser(SessionId session, const UserChange& change) = 0;
  virtual UserRecord SetPassword(SessionId session, const ObjectVersion& user, std::string_view password) = 0;
  /// All or none.
  virtual void DeleteUsers(SessionId session, const std::vector<ObjectVersion>& users,
                           const Progress& progress) = 0;

  virtual DomainRecord CreateDomain(SessionId session, const DomainRecord& domain, const DomainCopy& copy,
                                    const Progress& progress) = 0;
  virtual DomainRecord ChangeDomain(SessionId session, const DomainChange& change) = 0;
  virtual void DeleteDomain(SessionId session, const ObjectVersion& domain, const Progress& progress) = 0;

  virtual GroupRecord CreateGroup(SessionId session, const GroupRecord& group) = 0;
  virtual GroupRecord ChangeGroup(SessionId session, const GroupChange& change) = 0;
  /// All or none.
  virtual void DeleteGroups(SessionId session, const std::vector<ObjectVersion>& groups,
                            const Progress& progress) = 0;

  /// Returns the owner's new version.
  virtual Version ChangeMembers(SessionId session, const MembershipChange& change,
                                const Progress& progress) = 0;

  virtual StyleRecord CreateStyle(SessionId session, const StyleRecord& style) = 0;
  virtual StyleRecord ChangeStyle(SessionId session, const StyleChange& change) = 0;
  virtual void DeleteStyle(SessionId session, const ObjectVersion& style) = 0;

  // The logged-in user's configuration document
  // -------------------------------------------------------------------

  struct UserConfiguration {
    Version version = 0;  ///< 0: none stored yet
    std::string xml;
  };
  virtual UserConfiguration LoadUserConfiguration(SessionId session) = 0;
  virtual UserConfiguration StoreUserConfiguration(SessionId session,
                                                   const UserConfiguration& configuration) = 0;
};

}  // namespace mindloft
