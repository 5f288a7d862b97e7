#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "controls/rows/DirectoryTexts.h"
#include "controls/rows/DomainRows.h"
#include "controls/rows/GroupRows.h"
#include "controls/rows/RoleRows.h"
#include "controls/rows/UserRows.h"
#include "core/Refresh.h"
#include "core/modShare.h"
#include "editors/domains/DomainRights.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "mainwindow/Texts.h"
#include "mainwindow/TreeKeys.h"
#include "mainwindow/objects/DomainCommands.h"
#include "mainwindow/objects/DomainUserCommands.h"
#include "mainwindow/objects/GroupCommands.h"
#include "mainwindow/objects/RoleCommands.h"
#include "mainwindow/objects/UserCommands.h"

namespace mindloft {

namespace {

using namespace texts;

auto HoldsSys(std::uint32_t privilege) {
  return [privilege](const KindScope&) { return CheckSysPrivilege(privilege); };
}

auto HoldsInDomain(std::uint32_t privilege) {
  return [privilege](const KindScope& scope) { return MayChangeDomain(scope.domain, privilege); };
}

/// A node that lists its own child nodes.
DirectoryKind FolderOfNodes(const wxString& key) {
  DirectoryKind kind;
  kind.key = key;
  kind.columns = {{kColumnName, 450}};
  return kind;
}

DirectoryKind Domains() {
  DirectoryKind kind;
  kind.key = keys::kDomains;
  kind.columns = {{kColumnName, 150}, {kColumnDescription, 150}, {kColumnState, 150}};
  kind.rows = [](const KindScope& scope) {
    return std::make_shared<DomainRows>(scope.server->KDomains()->View());
  };
  kind.notifyKind = static_cast<std::int32_t>(ObjectKind::Domain);
  kind.create = {.name = "mnuDomainaddNew", .allowed = HoldsSys(CreateDomains), .action = NewDomain};
  kind.remove = {.name = "mnuDomainDelete",
                 .allowed = HoldsSys(DeleteDomains),
                 .action = DeleteSelectedDomains,
                 .onMany = true};
  kind.edit = {.name = "mnuDomainProperties", .allowed = {}, .action = ShowDomainProperties};
  return kind;
}

DirectoryKind AllUsers() {
  DirectoryKind kind;
  kind.key = keys::kUsers;
  kind.columns = {{kColumnName, 150}, {kColumnFullName, 150}, {kColumnDescription, 300}};
  kind.rows = [](const KindScope& scope) {
    return std::make_shared<UserRows>(scope.server->Users()->View());
  };
  kind.notifyKind = static_cast<std::int32_t>(ObjectKind::User);
  kind.create = {.name = "mnuUseraddNew", .allowed = HoldsSys(ManageUsers), .action = NewUser};
  kind.remove = {.name = "mnuUserDelete",
                 .allowed = HoldsSys(DeleteUsers),
                 .action = DeleteSelectedUsers,
                 .onMany = true};
  kind.edit = {.name = "mnuUserProperties", .allowed = {}, .action = ShowUserProperties};
  return kind;
}

DirectoryKind AllRoles() {
  DirectoryKind kind;
  kind.key = keys::kRoles;
  kind.columns = {{kColumnName, 150}, {kColumnPrivileges, 300}};
  kind.rows = [](const KindScope& scope) {
    return std::make_shared<RoleRows>(scope.server->Roles()->View());
  };
  // Roles are neither made nor deleted in the console.
  kind.edit = {.name = "mnuRoleProperties", .allowed = {}, .action = ShowRoleProperties};
  return kind;
}

DirectoryKind GroupsOfDomain() {
  DirectoryKind kind;
  kind.key = keys::kDomainGroups;
  kind.inDomain = true;
  kind.columns = {{kColumnName, 150}, {kColumnDescription, 300}};
  kind.rows = [](const KindScope& scope) {
    return std::make_shared<GroupRows>(scope.domain->KDomain()->DGroups()->View());
  };
  kind.notifyKind = static_cast<std::int32_t>(ObjectKind::UserGroup);
  const auto allowed = HoldsInDomain(ManageDomainGroups);
  kind.create = {.name = "mnuGroupaddNew", .allowed = allowed, .action = NewGroup};
  kind.remove = {
      .name = "mnuGroupDelete", .allowed = allowed, .action = DeleteSelectedGroups, .onMany = true};
  kind.edit = {.name = "mnuGroupProperties", .allowed = {}, .action = ShowGroupProperties};
  return kind;
}

DirectoryKind UsersOfDomain() {
  DirectoryKind kind;
  kind.key = keys::kDomainUsers;
  kind.inDomain = true;
  kind.columns = {{kColumnName, 150}, {kColumnFullName, 150}, {kColumnDescription, 300}};
  kind.rows = [](const KindScope& scope) {
    return std::make_shared<UserRows>(scope.domain->KDomain()->DUsers()->View());
  };
  kind.notifyKind = static_cast<std::int32_t>(ObjectKind::DomainUser);
  const auto allowed = HoldsInDomain(ManageDomainUsers);
  kind.create = {.name = "mnuDUseraddNew", .allowed = allowed, .action = AddDomainUsers};
  kind.remove = {.name = "mnuDUserDelete", .allowed = allowed, .action = RemoveDomainUsers, .onMany = true};
  kind.edit = {.name = "mnuDUserProperties", .allowed = {}, .action = ShowDomainUserProperties};
  return kind;
}

}  // namespace

void RegisterObjectKinds(ObjectKindRegistry& registry) {
  registry.Add(FolderOfNodes(keys::kRoot));
  registry.Add(FolderOfNodes(keys::kAnyDomain));
  registry.Add(Domains());
  registry.Add(AllRoles());
  registry.Add(AllUsers());
  registry.Add(GroupsOfDomain());
  registry.Add(UsersOfDomain());
}

}  // namespace mindloft
