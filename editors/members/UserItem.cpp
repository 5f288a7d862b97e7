#include "editors/members/UserItem.h"

#include <utility>

#include "backend/corvane/Corvane.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/rows/UserRows.h"

namespace mindloft {

UserItem::UserItem(std::shared_ptr<Corvane::User> user, std::int32_t statu)
    : row_(UserRows::RowOf(user->Stored())), statu_(statu), user_(std::move(user)) {}

std::shared_ptr<Corvane::User> UserItem::User() const {
  if (!user_) user_ = GetApplication()->Server()->Users()->Item(ToUtf8(Id()));
  return user_;
}

}  // namespace mindloft
