#include "mainwindow/objects/GroupCommands.h"

#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/Refresh.h"
#include "editors/domains/DomainRights.h"
#include "editors/members/frmDGroupProperty.h"
#include "mainwindow/objects/ObjectTexts.h"
#include "mainwindow/objects/Questions.h"

namespace mindloft {

namespace {

/// Those of the keys that are still there.
std::vector<std::shared_ptr<Corvane::DGroup>> FindGroups(const KindScope& scope,
                                                         const std::vector<wxString>& keys) {
  const auto all = scope.domain->KDomain()->DGroups();
  std::vector<std::shared_ptr<Corvane::DGroup>> groups;
  for (const auto& key : keys)
    if (auto group = all->Item(ToUtf8(key))) groups.push_back(std::move(group));
  return groups;
}

}  // namespace

void NewGroup(const KindScope& scope, const std::vector<wxString>&) {
  const auto group = scope.domain->KDomain()->DGroups()->Add();
  frmDGroupProperty(scope.owner).OpenWindow(group);
  if (!group->IsNew()) GetRefresh()->Notify(ObjectKind::UserGroup, ObjectAction::Created, group);
}

void DeleteSelectedGroups(const KindScope& scope, const std::vector<wxString>& keys) {
  if (!MayChangeDomain(scope.domain, ManageDomainGroups))
    return Refuse(texts::kMayNotDeleteGroups, texts::kInformationTitle, scope.owner);
  const auto groups = FindGroups(scope, keys);
  if (groups.empty()) return GetMessenger().ShowMessage(texts::kObjectIsGone, {}, scope.owner);
  std::vector<ObjectVersion> versions;
  for (const auto& group : groups) {
    if (group->BuiltIn())
      return Refuse(texts::kBuiltIn, texts::kInformationTitle, scope.owner, {ToWx(group->Name())});
    versions.push_back({group->Stored().id, group->Stored().version});
  }
  if (!ConfirmDeletion({texts::kDeleteGroup, texts::kDeleteGroups}, groups.size(), scope.owner)) return;
  scope.domain->KDomain()->DGroups()->Delete(versions);
  // One for all: the list of the domain's groups is read anew.
  GetRefresh()->Notify(ObjectKind::UserGroup, ObjectAction::Deleted, groups.front());
}

void ShowGroupProperties(const KindScope& scope, const std::vector<wxString>& keys) {
  const auto groups = FindGroups(scope, keys);
  if (groups.empty()) return GetMessenger().ShowMessage(texts::kObjectIsGone, {}, scope.owner);
  frmDGroupProperty(scope.owner).OpenWindow(groups.front());
  GetRefresh()->Notify(ObjectKind::UserGroup, ObjectAction::Changed, groups.front());
}

}  // namespace mindloft
