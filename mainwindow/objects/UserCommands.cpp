#include "mainwindow/objects/UserCommands.h"

#include <algorithm>

#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/GroupedNumber.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/Refresh.h"
#include "core/modShare.h"
#include "editors/LongChange.h"
#include "editors/user/frmUserDetail.h"
#include "mainwindow/objects/FindObjects.h"
#include "mainwindow/objects/ObjectTexts.h"
#include "mainwindow/objects/Questions.h"

namespace mindloft {

void NewUser(const KindScope& scope, const std::vector<wxString>&) {
  const auto user = scope.server->Users()->Add();
  if (!user) return;
  frmUserDetail(scope.owner).OpenWindow(user);
  // The editor stores the user; one who was not saved has never been.
  if (!user->IsNew()) GetRefresh()->Notify(ObjectKind::User, ObjectAction::Created, user);
}

void DeleteSelectedUsers(const KindScope& scope, const std::vector<wxString>& keys) {
  const auto self = GetConnection()->CurrentUser();
  if (self && std::ranges::find(keys, ToWx(self->Id())) != keys.end())
    return Refuse(texts::kOwnAccount, Tessaline::kInformationTitle, scope.owner);
  if (!CheckSysPrivilege(DeleteUsers))
    return Refuse(texts::kMayNotDeleteUsers, Tessaline::kInformationTitle, scope.owner);
  const auto all = scope.server->Users();
  const auto users = all->Versions(IdsOf(keys));
  if (users.empty()) return GetMessenger().ShowMessage(texts::kUserIsGone, {}, scope.owner);
  if (!ConfirmDeletion({texts::kDeleteUser, texts::kDeleteUsers}, users.size(), scope.owner)) return;

  // One for all: what shows users shows all of them anew.
  const auto first = all->Item(Corvane::IdText(users.front().id));
  const auto count = GroupedNumber(static_cast<std::int64_t>(users.size()));
  const auto caption = GetResource().GetFormatString(texts::kDeletingUsers, {count});
  if (RunLongChange(scope.owner, caption, kPatience,
                    [&](const Progress& progress) { all->Delete(users, progress); }))
    GetRefresh()->Notify(ObjectKind::User, ObjectAction::Deleted, first);
}

void ShowUserProperties(const KindScope& scope, const std::vector<wxString>& keys) {
  const auto user = FirstObject(*scope.server->Users(), keys);
  if (!user) return GetMessenger().ShowMessage(texts::kUserIsGone, {}, scope.owner);
  frmUserDetail(scope.owner).OpenWindow(user);
  GetRefresh()->Notify(ObjectKind::User, ObjectAction::Changed, user);
}

}  // namespace mindloft
