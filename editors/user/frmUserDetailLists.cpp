// The lists of frmUserDetail: roles, knowledge domains and groups.

#include <algorithm>

#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryList.h"
#include "controls/rows/DirectoryTexts.h"
#include "controls/rows/DomainRows.h"
#include "controls/rows/RoleRows.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"
#include "editors/user/frmUserDetail.h"

namespace mindloft {
namespace {

using namespace texts;

constexpr int kDomain = 61615;
constexpr int kAccessDenied = static_cast<int>(ErrorNumber::AccessDenied);

const std::vector<DirectoryColumn> roleColumns = {{kColumnName, 190}, {kColumnPrivileges, 240}};
const std::vector<DirectoryColumn> domainColumns = {
    {kColumnName, 160}, {kColumnDescription, 200}, {kColumnState, 90}};
const std::vector<DirectoryColumn> groupColumns = {
    {kColumnName, 160}, {kDomain, 150}, {kColumnDescription, 150}};

void InitCheckList(ctExplorer& list, const PendingChecks& checks) {
  PrepareDirectoryList(list);
  list.SetCheckBoxes([&checks](const ExplorerRow& row) { return checks.IsChecked(IdOf(row)); });
}

std::shared_ptr<ExplorerRows> RolesOfServer() {
  return std::make_shared<RoleRows>(GetApplication()->Server()->Roles()->View());
}

std::shared_ptr<ExplorerRows> DomainsOfServer() {
  return std::make_shared<DomainRows>(GetApplication()->Server()->KDomains()->View());
}

/// All records of a view, in one piece: a page at a time would sort a long one once for each page.
template <typename Record>
std::vector<Record> AllOf(const Corvane::View<Record>& view) {
  return view.Page(0, view.Count());
}

template <typename Record>
std::vector<ObjectId> IdsOf(const std::vector<Record>& records) {
  std::vector<ObjectId> ids;
  ids.reserve(records.size());
  for (const Record& record : records) ids.push_back(record.id);
  return ids;
}

}  // namespace

void frmUserDetail::InitLists() try {
  mindloft::InitCheckList(*ctRole, roles_);
  mindloft::InitCheckList(*ctDomain, domains_);
  mindloft::InitCheckList(*ctGroup, changedGroups_);
  ctRole->lvCheckClick = [this](const ExplorerRow& row) {
    RunEvent("ctRole_lvCheckClick", [&] { ctRole_lvCheckClick(row); });
  };
  ctDomain->lvCheckClick = [this](const ExplorerRow& row) {
    RunEvent("ctDomain_lvCheckClick", [&] { ctDomain_lvCheckClick(row); });
  };
  ctGroup->lvCheckClick = [this](const ExplorerRow& row) {
    RunEvent("ctGroup_lvCheckClick", [&] { ctGroup_lvCheckClick(row); });
  };
} catch (...) {
  mindloft::Raise("frmUserDetail", "InitLists");
}

void frmUserDetail::LoadLists() {
  const auto load = [](ctExplorer& list, const std::vector<DirectoryColumn>& columns,
                       std::shared_ptr<ExplorerRows> rows) {
    if (rows) {
      ShowDirectoryList(list, columns, std::move(rows));
      return;
    }
    list.ClearList();
    AddDirectoryColumns(list, columns);
  };
  load(*ctRole, roleColumns, IsFilled(RolesPage) ? RolesOfServer() : nullptr);
  load(*ctDomain, domainColumns, IsFilled(DomainsPage) ? DomainsOfServer() : nullptr);
  load(*ctGroup, groupColumns, groupRows_);
}

void frmUserDetail::DisplayRoles() try {
  roles_.SetSaved(user_->IsNew() ? std::vector<ObjectId>() : IdsOf(AllOf(user_->Roles())));
  ctRole->SetRows(RolesOfServer());
} catch (...) {
  mindloft::Raise("frmUserDetail", "DisplayRoles");
}

void frmUserDetail::DisplayDomains() try {
  ReadDomains();
  ctDomain->SetRows(DomainsOfServer());
} catch (...) {
  mindloft::Raise("frmUserDetail", "DisplayDomains");
}

void frmUserDetail::ReadDomains() {
  savedDomains_.clear();
  if (!user_->IsNew()) savedDomains_ = AllOf(user_->Domains());
  domains_.SetSaved(IdsOf(savedDomains_));
  std::vector<GroupRecord> groups;
  if (!user_->IsNew()) groups = AllOf(user_->Groups());
  std::vector<ObjectId> domainsOfGroups;
  domainsOfGroups.reserve(groups.size());
  for (const GroupRecord& group : groups) domainsOfGroups.push_back(group.domain);
  changedGroups_.SetSaved(IdsOf(groups), domainsOfGroups);
}

void frmUserDetail::DisplayGroups() try {
  std::vector<DomainRecord> checked;
  for (const DomainRecord& domain : savedDomains_)
    if (domains_.IsChecked(domain.id)) checked.push_back(domain);
  const auto all = GetApplication()->Server()->KDomains();
  for (const ObjectId id : domains_.Additions())
    if (const auto context = all->Item(Corvane::IdText(id))) checked.push_back(context->KDomain()->Stored());
  if (groupRows_) {
    groupRows_->SetDomains(std::move(checked));
    ctGroup->RefreshList();
    return;
  }
  groupRows_ = std::make_shared<DomainsGroupRows>(all);
  groupRows_->SetDomains(std::move(checked));
  ctGroup->SetRows(groupRows_);
} catch (...) {
  mindloft::Raise("frmUserDetail", "DisplayGroups");
}

void frmUserDetail::InitList() try {
  if (IsFilled(RolesPage)) {
    roles_.SetSaved(IdsOf(AllOf(user_->Roles())));
    ctRole->RefreshList();
  }
  if (IsFilled(DomainsPage)) {
    ReadDomains();
    ctDomain->RefreshList();
    DisplayGroups();
  }
} catch (...) {
  mindloft::Raise("frmUserDetail", "InitList");
}

void frmUserDetail::ctRole_lvCheckClick(const ExplorerRow& role) {
  if (!CheckSysPrivilege(ManageRoles)) {
    GetMessenger().ShowMessage(kAccessDenied, {}, this);
    return;
  }
  roles_.Toggle(IdOf(role));
  changed_ = rolesChanged_ = true;
  SetButtonStatus();
}

bool frmUserDetail::MayChangeDomain(ObjectId domain, std::uint32_t privilege) {
  if (CheckSysPrivilege(ChangeDomains)) return true;
  const auto context = GetApplication()->Server()->KDomains()->Item(Corvane::IdText(domain));
  if (CheckDomainPrivilege(context, privilege)) return true;
  GetMessenger().ShowMessage(kAccessDenied, {}, this);
  return false;
}

void frmUserDetail::ctDomain_lvCheckClick(const ExplorerRow& domain) {
  const ObjectId id = IdOf(domain);
  if (!MayChangeDomain(id, ManageDomainUsers)) return;
  domains_.Toggle(id);
  changed_ = groupsChanged_ = true;
  if (!domains_.IsChecked(id)) CheckUserGroup(id);
  DisplayGroups();
  SetButtonStatus();
}

void frmUserDetail::ctGroup_lvCheckClick(const ExplorerRow& group) {
  const ObjectId id = IdOf(group);
  const ObjectId domain = groupRows_->DomainOf(id);
  if (!MayChangeDomain(domain, ManageDomainGroups)) return;
  ToggleGroup(id, domain);
  SetButtonStatus();
}

void frmUserDetail::CheckUserGroup(ObjectId domain) {
  for (const ObjectId group : changedGroups_.CheckedIn(domain)) ToggleGroup(group, domain);
}

void frmUserDetail::ToggleGroup(ObjectId group, ObjectId domain) {
  changedGroups_.Toggle(group, domain);
  changed_ = groupsChanged_ = true;
}

}  // namespace mindloft
