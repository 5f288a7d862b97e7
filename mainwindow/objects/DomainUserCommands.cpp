#include "mainwindow/objects/DomainUserCommands.h"

#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/Refresh.h"
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
  const auto users = FindObjects(*all, keys);
  if (users.empty()) return GetMessenger().ShowMessage(texts::kUserIsGone, {}, scope.owner);
  all->Delete(VersionsOf(users));
  // One for all: the list of the domain's users is read anew.
  GetRefresh()->Notify(ObjectKind::DomainUser, ObjectAction::Deleted, users.front());
}

void ShowDomainUserProperties(const KindScope& scope, const std::vector<wxString>& keys) {
  const auto user = keys.empty() ? nullptr : scope.domain->KDomain()->DUsers()->Item(ToUtf8(keys.front()));
  if (!user) return GetMessenger().ShowMessage(texts::kUserIsGone, {}, scope.owner);
  frmDUserProperty(scope.owner).OpenWindow(user, scope.domain);
  GetRefresh()->Notify(ObjectKind::DomainUser, ObjectAction::Changed, user);
}

}  // namespace mindloft
