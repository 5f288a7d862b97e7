#pragma once

#include <cstddef>
#include <map>
#include <unordered_map>
#include <vector>

#include "backend/directory/Records.h"

namespace mindloft {

/// Which items of a list with check boxes are checked: the saved memberships, and the few that the user has
/// toggled since. Only these go to the back end, as additions and removals.
class PendingChecks {
 public:
  /// Forgets everything.
  void Clear();
  /// Takes memberships as saved, instead of those before. What the user has toggled stays, apart from what
  /// has come true meanwhile. `scopes` names for each what it lies in, such as a group's domain; 0 or shorter
  /// than the others: nothing.
  void SetSaved(const std::vector<ObjectId>& ids, const std::vector<ObjectId>& scopes = {});

  /// Whether it is a saved membership.
  bool IfIdExist(ObjectId id) const { return saved_.count(id) > 0; }
  bool IsChecked(ObjectId id) const;
  /// Checks or unchecks the item. Back in its saved state, it is no change any more.
  void Toggle(ObjectId id, ObjectId scope = 0);
  /// The checked items of a scope.
  std::vector<ObjectId> CheckedIn(ObjectId scope) const;

  bool HasChanges() const { return !changed_.empty(); }
  std::vector<ObjectId> Additions() const { return Changed(true); }
  std::vector<ObjectId> Removals() const { return Changed(false); }
  /// The toggled items are saved now.
  void Commit();

 private:
  struct Change {
    ObjectId scope = 0;
    bool checked = false;
  };
  std::vector<ObjectId> Changed(bool checked) const;

  std::unordered_map<ObjectId, ObjectId> saved_;  ///< scope by identifier
  std::map<ObjectId, Change> changed_;
};

}  // namespace mindloft
