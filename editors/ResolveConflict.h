#pragma once

#include <utility>
#include <vector>

#include "backend/errors/Error.h"
#include "backend/tessaline/Services.h"
#include "editors/ThreeWayMerge.h"
#include "editors/frmConflict.h"

namespace mindloft {

/// Brings the puts of an object (Corvane::User, DGroup or KDomain) together with what somebody else has
/// stored meanwhile. Fields that only one side changed are merged silently; about others, and about the
/// `further` ones that no record shows (a password), the user is asked. True: the object is based on the
/// stored record now and holds what is to be stored; `choice` tells what became of the fields asked about
/// (Mine when none was). False: the user goes back, and the object is unchanged, so that the next attempt
/// asks again.
template <typename Object, typename Record>
bool ResolveConflict(wxWindow* parent, Object& object, const std::vector<RecordField<Record>>& fields,
                     const Error& conflict, const std::vector<FieldDifference>& further = {},
                     ConflictChoice* choice = nullptr) {
  const Record theirs = object.Current();
  const Record mine = object.Edited();
  ThreeWayMerge<Record> merge(fields, object.Stored(), mine, theirs);
  ConflictChoice chosen = ConflictChoice::Mine;
  if (!merge.conflicts.empty() || !further.empty()) {
    std::vector<FieldDifference> differences;
    differences.reserve(merge.conflicts.size() + further.size());
    for (const std::size_t i : merge.conflicts) {
      FieldDifference difference = {GetResource().GetString(fields[i].label), fields[i].text(mine),
                                    fields[i].text(theirs)};
      if (difference.mine == difference.theirs && fields[i].readsAlike != 0)
        difference.theirs = GetResource().GetFormatString(fields[i].readsAlike, {difference.theirs});
      differences.push_back(std::move(difference));
    }
    differences.insert(differences.end(), further.begin(), further.end());
    frmConflict dialog(parent, conflict, differences);
    chosen = dialog.Ask();
    if (chosen == ConflictChoice::GoBack) return false;
    if (chosen == ConflictChoice::Theirs)
      for (const std::size_t i : merge.conflicts) fields[i].copy(merge.merged, theirs);
  }
  object.Rebase(theirs, merge.merged);
  if (choice) *choice = chosen;
  return true;
}

}  // namespace mindloft
