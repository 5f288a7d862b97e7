#pragma once

#include "controls/rows/RecordRows.h"

namespace mindloft {

/// Roles: name, privileges in words.
class RoleRows : public RecordRows<RoleRecord> {
 public:
  explicit RoleRows(Corvane::RoleView view);

 protected:
  std::vector<wxString> Fields(const RoleRecord& record) const override;
  int Image(const RoleRecord& record) const override;
};

}  // namespace mindloft
