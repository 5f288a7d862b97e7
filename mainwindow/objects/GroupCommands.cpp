#include "mainwindow/objects/GroupCommands.h"

#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/GroupedNumber.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/Refresh.h"
#include "editors/LongChange.h"
#include "editors/domains/DomainRights.h"
#include "editors/members/frmDGroupProperty.h"
#include "mainwindow/objects/FindObjects.h"
#include "mainwindow/objects/ObjectTexts.h"
#include "mainwindow/objects/Questions.h"

namespace mindloft {

void NewGroup(const KindScope& scope, const std::vector<wxString>&) {
  const auto group = scope.domain->KDomain()->DGroups()->Add();
  frmDGroupProperty(scope.owner).OpenWindow(group);
  if (!group->IsNew()) GetRefresh()->Notify(ObjectKind::UserGroup, ObjectAction::Created, group);
}

void DeleteSelectedGroups(const KindScope& scope, const std::vector<wxString>& keys) {
  if (!MayChangeDomain(scope.domain, ManageDomainGroups))
    return Refuse(texts::kMayNotDeleteGroups, Tessaline::kInformationTitle, scope.owner);
  const auto all = scope.domain->KDomain()->DGroups();
  const auto groups = all->Items(IdsOf(keys));
  if (groups.empty()) return GetMessenger().ShowMessage(texts::kObjectIsGone, {}, scope.owner);
  for (const auto& group : groups)
    if (group->BuiltIn())
      return Refuse(texts::kBuiltIn, Tessaline::kInformationTitle, scope.owner, {ToWx(group->Name())});
  if (!ConfirmDeletion({texts::kDeleteGroup, texts::kDeleteGroups}, groups.size(), scope.owner)) return;
  std::vector<ObjectVersion> versions;
  versions.reserve(groups.size());
  for (const auto& group : groups) versions.push_back({group->Stored().id, group->Stored().version});
  const auto count = GroupedNumber(static_cast<std::int64_t>(groups.size()));
  const auto caption = GetResource().GetFormatString(texts::kDeletingGroups, {count});
  // One for all: the list of the domain's groups is read anew.
  if (RunLongChange(scope.owner, caption, kPatience,
                    [&](const Progress& progress) { all->Delete(versions, progress); }))
    GetRefresh()->Notify(ObjectKind::UserGroup, ObjectAction::Deleted, groups.front());
}

void ShowGroupProperties(const KindScope& scope, const std::vector<wxString>& keys) {
  const auto group = FirstObject(*scope.domain->KDomain()->DGroups(), keys);
  if (!group) return GetMessenger().ShowMessage(texts::kObjectIsGone, {}, scope.owner);
  frmDGroupProperty(scope.owner).OpenWindow(group);
  GetRefresh()->Notify(ObjectKind::UserGroup, ObjectAction::Changed, group);
}

}  // namespace mindloft
