#include "mainwindow/objects/DomainUserCommands.h"

#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/Refresh.h"
#include "editors/domains/DomainRights.h"
#include "editors/domains/frmDUserAdd.h"
#include "editors/domains/frmDUserProperty.h"
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
    return Refuse(texts::kMayNotRemoveDomainUsers, texts::kInformationTitle, scope.owner);
  if (!ConfirmDeletion({texts::kRemoveDomainUser, texts::kRemoveDomainUsers}, keys.size(), scope.owner))
    return;
  const auto all = scope.domain->KDomain()->DUsers();
  std::vector<ObjectVersion> versions;
  std::shared_ptr<Corvane::User> first;
  for (const auto& key : keys) {
    const auto user = all->Item(ToUtf8(key));
    if (!user) continue;
    if (!first) first = user;
    versions.push_back({user->Stored().id, user->Stored().version});
  }
  if (!first) return GetMessenger().ShowMessage(texts::kUserIsGone, {}, scope.owner);
  all->Delete(versions);
  // One for all: the list of the domain's users is read anew.
  GetRefresh()->Notify(ObjectKind::DomainUser, ObjectAction::Deleted, first);
}

void ShowDomainUserProperties(const KindScope& scope, const std::vector<wxString>& keys) {
  const auto user = keys.empty() ? nullptr : scope.domain->KDomain()->DUsers()->Item(ToUtf8(keys.front()));
  if (!user) return GetMessenger().ShowMessage(texts::kUserIsGone, {}, scope.owner);
  frmDUserProperty(scope.owner).OpenWindow(user, scope.domain);
  GetRefresh()->Notify(ObjectKind::DomainUser, ObjectAction::Changed, user);
}

}  // namespace mindloft
