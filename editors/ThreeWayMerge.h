#pragma once

#include <cstddef>
#include <vector>

#include "editors/RecordField.h"

namespace mindloft {

/// Two changes of one record brought together: each field takes the value of the side that changed it.
template <typename Record>
struct ThreeWayMerge {
  Record merged;                       ///< their record with my changes in it
  std::vector<std::size_t> conflicts;  ///< positions of the fields that both changed differently

  /// `base`: what both started from; `mine`: it with my changes; `theirs`: as it is stored now.
  ThreeWayMerge(const std::vector<RecordField<Record>>& fields, const Record& base, const Record& mine,
                const Record& theirs)
      : merged(theirs) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
      const auto& field = fields[i];
      if (field.isSame(mine, base) || field.isSame(mine, theirs)) continue;
      field.copy(merged, mine);
      if (!field.isSame(theirs, base)) conflicts.push_back(i);
    }
  }
};

}  // namespace mindloft
