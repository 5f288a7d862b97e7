#include "backend/corvane/MembershipLists.h"

#include "backend/corvane/IdList.h"

namespace mindloft::Corvane {

Version ChangeMemberships(const Session& session, Membership membership, const ObjectVersion& owner,
                          const std::string& additions, const std::string& removals,
                          const Progress& progress) {
  MembershipChange change{membership, owner, IdsFromList(additions), IdsFromList(removals)};
  if (change.additions.empty() && change.removals.empty()) return owner.version;
  return session.Door().ChangeMembers(session.id, change, progress);
}

}  // namespace mindloft::Corvane
