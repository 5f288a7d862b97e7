#include "mainwindow/objects/DomainCommands.h"

#include <chrono>

#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/Refresh.h"
#include "core/modShare.h"
#include "editors/LongChange.h"
#include "editors/domains/frmDomainInfo.h"
#include "mainwindow/objects/FindObjects.h"
#include "mainwindow/objects/ObjectTexts.h"
#include "mainwindow/objects/Questions.h"

namespace mindloft {

void NewDomain(const KindScope& scope, const std::vector<wxString>&) {
  const auto domains = scope.server->KDomains();
  const auto domain = domains->Add();
  frmDomainInfo(scope.owner).OpenWindow(domain);
  if (!domain->IsNew())
    GetRefresh()->Notify(ObjectKind::Domain, ObjectAction::Created, domains->Context(domain->Stored()));
}

void DeleteSelectedDomains(const KindScope& scope, const std::vector<wxString>& keys) {
  if (!CheckSysPrivilege(DeleteDomains))
    return Refuse(texts::kMayNotDeleteDomains, Tessaline::kWarningTitle, scope.owner);
  if (!ConfirmDeletion({texts::kDeleteDomain, texts::kDeleteDomains}, keys.size(), scope.owner)) return;
  const auto domains = scope.server->KDomains();
  for (const auto& key : keys) {
    const auto context = domains->Item(ToUtf8(key));
    if (!context) {
      GetMessenger().ShowMessage(texts::kObjectIsGone, {}, scope.owner);
      continue;
    }
    const auto& domain = context->KDomain()->Stored();
    const auto caption = GetResource().GetFormatString(texts::kDeletingDomain, {ToWx(domain.name)});
    if (!RunLongChange(scope.owner, caption, std::chrono::milliseconds::zero(),
                       [&](const Progress& progress) {
                         domains->Delete({domain.id, domain.version}, progress);
                       }))
      return;
    GetRefresh()->Notify(ObjectKind::Domain, ObjectAction::Deleted, context);
  }
}

void ShowDomainProperties(const KindScope& scope, const std::vector<wxString>& keys) {
  const auto context = FirstObject(*scope.server->KDomains(), keys);
  if (!context) return GetMessenger().ShowMessage(texts::kObjectIsGone, {}, scope.owner);
  frmDomainInfo(scope.owner).OpenWindow(context->KDomain());
  GetRefresh()->Notify(ObjectKind::Domain, ObjectAction::Changed, context);
}

}  // namespace mindloft
