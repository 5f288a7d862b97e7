#pragma once

#include <wx/string.h>

#include <cstdint>
#include <memory>

#include "controls/explorer/ExplorerRows.h"

namespace mindloft {

namespace Corvane {
class User;
}

/// What is to become of a user's membership.
enum MemberStatu : std::int32_t { ToBeAdded = 2, ToBeRemoved = 3 };

/// One pending change of a list of members: a user, and whether he is to be added or removed.
class UserItem {
 public:
  /// `row` is the user as lists show him.
  UserItem(ExplorerRow row, std::int32_t statu) : row_(std::move(row)), statu_(statu) {}
  UserItem(std::shared_ptr<Corvane::User> user, std::int32_t statu);

  /// The user, asked of the directory when that is needed first; nothing when somebody has deleted him.
  std::shared_ptr<Corvane::User> User() const;
  const wxString& Id() const { return row_.key; }
  std::int32_t Statu() const { return statu_; }
  const ExplorerRow& Row() const { return row_; }

 private:
  ExplorerRow row_;
  std::int32_t statu_;
  mutable std::shared_ptr<Corvane::User> user_;
};

}  // namespace mindloft
