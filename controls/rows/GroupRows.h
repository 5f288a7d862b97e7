#pragma once

#include "controls/rows/RecordRows.h"

namespace mindloft {

/// Groups of a knowledge domain: name, description.
class GroupRows : public RecordRows<GroupRecord> {
 public:
  explicit GroupRows(Corvane::GroupView view);

 protected:
  std::vector<wxString> Fields(const GroupRecord& record) const override;
  int Image(const GroupRecord& record) const override;
};

}  // namespace mindloft
