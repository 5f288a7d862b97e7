#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "controls/rows/DomainRows.h"
#include "controls/rows/GroupRows.h"
#include "controls/rows/RoleRows.h"
#include "controls/rows/UserRows.h"
#include "core/Refresh.h"
#include "core/modShare.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "mainwindow/Texts.h"
#include "mainwindow/TreeKeys.h"

namespace mindloft {

namespace {

using namespace texts;

auto HoldsSys(std::uint32_t privilege) {
  return [privilege](const KindScope&) { return CheckSysPrivilege(privilege); };
}

/// For those who may do it in this one domain, and for those who may change any domain.
auto HoldsInDomain(std::uint32_t privilege) {
  return [privilege](const KindScope& scope) {
    return scope.domain &&
           (CheckDomainPrivilege(scope.domain, privilege) || CheckSysPrivilege(ChangeDomains));
  };
}

/// A node that lists its own child nodes.
DirectoryKind FolderOfNodes(const wxString& key) {
  DirectoryKind kind;
  kind.key = key;
  kind.columns = {{kColumnName, 450}};
  return kind;
}

// The commands of a kind have no action until an editor for it is registered here; until then they are shown
// disabled.

DirectoryKind Domains() {
  DirectoryKind kind;
  kind.key = keys::kDomains;
  kind.columns = {{kColumnName, 150}, {kColumnDescription, 150}, {kColumnState, 150}};
  kind.rows = [](const KindScope& scope) {
    return std::make_shared<DomainRows>(scope.server->KDomains()->View());
  };
  kind.notifyKind = static_cast<std::int32_t>(ObjectKind::Domain);
  kind.create = {.name = "mnuDomainaddNew", .allowed = HoldsSys(CreateDomains), .action = {}};
  kind.remove = {.name = "mnuDomainDelete", .allowed = HoldsSys(DeleteDomains), .action = {}};
  kind.edit = {.name = "mnuDomainProperties", .allowed = {}, .action = {}};
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
  kind.create = {.name = "mnuUseraddNew", .allowed = HoldsSys(ManageUsers), .action = {}};
  kind.remove = {.name = "mnuUserDelete", .allowed = HoldsSys(DeleteUsers), .action = {}, .onMany = true};
  kind.edit = {.name = "mnuUserProperties", .allowed = {}, .action = {}};
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
  kind.edit = {.name = "mnuRoleProperties", .allowed = {}, .action = {}};
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
  kind.create = {.name = "mnuGroupaddNew", .allowed = allowed, .action = {}};
  kind.remove = {.name = "mnuGroupDelete", .allowed = allowed, .action = {}, .onMany = true};
  kind.edit = {.name = "mnuGroupProperties", .allowed = {}, .action = {}};
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
  kind.create = {.name = "mnuDUseraddNew", .allowed = allowed, .action = {}};
  kind.remove = {.name = "mnuDUserDelete", .allowed = allowed, .action = {}, .onMany = true};
  kind.edit = {.name = "mnuDUserProperties", .allowed = {}, .action = {}};
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
