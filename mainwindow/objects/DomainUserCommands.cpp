#include "mainwindow/objects/DomainUserCommands.h"

#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/GroupedNumber.h"
#include "backend/tessaline/Services.h"
#include "core/Refresh.h"
#include "editors/LongChange.h"
#include "editors/domains/DomainRights.h"
#include "editors/domains/frmDUserAdd.h"
#include "editors/domains/frmDUserProperty.h"
#include "mainwindow/objects/FindObjects.h"
#include "mainwindow/objects/ObjectTexts.h"
#include "mainwindow/objects/Questions.h"

namespace mindloft {

void AddDomainUsers(const KindScope& scope, const std::vector<wxString>&) {
  frmDUserAdd form(scope.owner);
  form.OpenWindow(scope.domain->KDomain());
  if (form.FirstAdded())
    GetRefresh()->Notify(ObjectKind::DomainUser, ObjectAction::Created, form.FirstAdded());
}

void RemoveDomainUsers(const KindScope& scope, const std::vector<wxString>& keys) {
  if (!MayChangeDomain(scope.domain, ManageDomainUsers))
    return Refuse(texts::kMayNotRemoveDomainUsers, Tessaline::kInformationTitle, scope.owner);
  if (!ConfirmDeletion({texts::kRemoveDomainUser, texts::kRemoveDomainUsers}, keys.size(), scope.owner))
    return;
  const auto all = scope.domain->KDomain()->DUsers();
  const auto users = all->Versions(IdsOf(keys));
  if (users.empty()) return GetMessenger().ShowMessage(texts::kUserIsGone, {}, scope.owner);
  // One for all: the list of the domain's users is read anew.
  const auto first = all->Item(Corvane::IdText(users.front().id));
  const auto count = GroupedNumber(static_cast<std::int64_t>(users.size()));
  const auto caption = GetResource().GetFormatString(texts::kRemovingDomainUsers, {count});
  if (RunLongChange(scope.owner, caption, kPatience,
                    [&](const Progress& progress) { all->Delete(users, progress); }))
    GetRefresh()->Notify(ObjectKind::DomainUser, ObjectAction::Deleted, first);
}

void ShowDomainUserProperties(const KindScope& scope, const std::vector<wxString>& keys) {
  const auto user = FirstObject(*scope.domain->KDomain()->DUsers(), keys);
  if (!user) return GetMessenger().ShowMessage(texts::kUserIsGone, {}, scope.owner);
  frmDUserProperty(scope.owner).OpenWindow(user, scope.domain);
  GetRefresh()->Notify(ObjectKind::DomainUser, ObjectAction::Changed, user);
}

}  // namespace mindloft
