#pragma once

#include "controls/rows/RecordRows.h"

namespace mindloft {

/// Users, of the whole directory or of one collection: name, full name, description.
class UserRows : public RecordRows<UserRecord> {
 public:
  explicit UserRows(Corvane::UserView view);

  /// The row of a user that was read elsewhere.
  static ExplorerRow RowOf(const UserRecord& record);

 protected:
  std::vector<wxString> Fields(const UserRecord& record) const override;
  int Image(const UserRecord& record) const override;
};

}  // namespace mindloft
