#pragma once

#include <string>
#include <utility>
#include <vector>

#include "backend/directory/store/DomainStore.h"
#include "backend/directory/store/GroupStore.h"
#include "backend/directory/store/RoleStore.h"
#include "backend/directory/store/UserStore.h"

namespace mindloft {

/// Who is in what: users in roles, domains and groups, changed from either side. The owner of the changed
/// list counts one more change; the versions on the other side stay.
class MembershipStore {
 public:
  MembershipStore(const StoreParts& parts, UserStore& users, RoleStore& roles, DomainStore& domains,
                  GroupStore& groups)
      : parts_(parts), users_(users), roles_(roles), domains_(domains), groups_(groups) {}

  /// The owner's version afterwards. Only users of a domain can be in its groups: ObjectNotFound for others;
  /// a user who leaves a domain leaves its groups.
  /// `progress` counts additions and removals.
  Version Change(const Caller& caller, const MembershipChange& change, const Progress& progress);

 private:
  using Named = std::vector<std::pair<ObjectId, std::string>>;
  /// The side on which a user is a member.
  enum class Container { Role, Domain, Group };
  struct Owner {
    JournalSubject subject;
    const char* table;
    Version version;
  };

  static Container ContainerOf(Membership membership);
  static bool OwnedByUser(Membership membership);
  Owner RequireOwner(const MembershipChange& change);
  void RequireRight(const Caller& caller, Container container, ObjectId id);
  /// The name of a container or user; ObjectNotFound.
  std::string NameOf(const char* table, ObjectId id);
  bool Add(Container container, ObjectId id, ObjectId user);
  bool Remove(Container container, ObjectId id, ObjectId user);

  StoreParts parts_;
  UserStore& users_;
  RoleStore& roles_;
  DomainStore& domains_;
  GroupStore& groups_;
};

}  // namespace mindloft
