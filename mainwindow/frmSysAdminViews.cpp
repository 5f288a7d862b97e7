// What the main window shows: tree and lists, and how they follow changes and the language.
#include "backend/corvane/Corvane.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ExplorerLists.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryTexts.h"
#include "core/ErrorHandling.h"
#include "core/forms/Form.h"
#include "core/modShare.h"
#include "mainwindow/BusyFlag.h"
#include "mainwindow/DirectoryLists.h"
#include "mainwindow/DirectoryTree.h"
#include "mainwindow/DomainContexts.h"
#include "mainwindow/MainStatusBar.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "mainwindow/RefreshHandlers.h"
#include "mainwindow/TreeKeys.h"
#include "mainwindow/WorkingArea.h"
#include "mainwindow/frmSysAdmin.h"

namespace mindloft {

void frmSysAdmin::LoadInfoOnForm() try {
  GetResource().LoadInfoOnForm(*this);
  // At start the parts below are not there yet; they are made in the current language.
  if (GetMenuBar())
    RebuildArea((GetLayoutDirection() == wxLayout_RightToLeft) != GetResource().IsRightToLeft());
  else
    Explorer().SetSearchHint(GetResource().GetString(texts::kSearchHint));
} catch (...) {
  mindloft::Raise("frmSysAdmin", "LoadInfoOnForm");
}

void frmSysAdmin::RebuildArea(bool anew) {
  const auto state = tree_->Remember();
  const auto list = Explorer().ListState();
  {
    const BusyFlag busy(busy_);
    if (anew) {
      ApplyLayoutDirection(*this);
      area_->Rebuild();
      SpecifyBreakChar(Explorer());
      ConnectExplorer();
    }
    Explorer().SetSearchHint(GetResource().GetString(texts::kSearchHint));
    InitMenu();
    // The names may have another order now. Where they cannot be read, the texts follow all the same.
    Guarded("frmSysAdmin", "BuildTree", [this] { domains_->Read(); });
    BuildRoot();
    DisplayTreeDomains();
    tree_->Restore(state);
  }
  ReloadList(list);
  ShowUser();
}

void frmSysAdmin::ReloadList(const ExplorerListState& state) {
  ctMainForm_trChange(GetTreeNodeIndex());
  Explorer().RestoreList(state);
  UpdateCommands();
}

void frmSysAdmin::ShowUser() {
  const auto user = connection_->CurrentUser();
  statusBar_->ShowUser(user ? ToWx(user->Name()) : wxString());
}

void frmSysAdmin::Refresh_Notify(std::int32_t& kind, std::int32_t& action, std::any& object) try {
  refreshHandlers_->Dispatch(kind, action, object);
} catch (...) {
  mindloft::Raise("frmSysAdmin", "Refresh_Notify");
}

void frmSysAdmin::Refresh_NotifyLanguage() try { LoadInfoOnForm(); } catch (...) {
  mindloft::Raise("frmSysAdmin", "Refresh_NotifyLanguage");
}

void frmSysAdmin::BuildTree() {
  const BusyFlag busy(busy_);
  domains_->Read();
  BuildRoot();
  DisplayTreeDomains();
}

void frmSysAdmin::RefreshAll() try {
  const auto before = tree_->Remember();
  {
    const BusyFlag busy(busy_);
    BuildTree();
    tree_->Restore(before);
  }
  // The list stays where it is when its node is still there.
  if (tree_->Remember().selected == before.selected && lists_->IsShown())
    Explorer().RefreshList();
  else
    ctMainForm_trChange(GetTreeNodeIndex());
  ShowUser();
  UpdateCommands();
} catch (...) {
  mindloft::Raise("frmSysAdmin", "RefreshAll");
}

void frmSysAdmin::BuildRoot() {
  tree_->BuildRoot();
}
void frmSysAdmin::DisplayTreeDomains() {
  tree_->DisplayTreeDomains();
}
void frmSysAdmin::DisplayDomainFixChild(int domainIndex) {
  tree_->DisplayDomainFixChild(domainIndex);
}
void frmSysAdmin::AddColumn(const wxString& nodeKey) {
  lists_->AddColumn(nodeKey);
}
void frmSysAdmin::ListRoot() {
  lists_->ListChildNodes(0);
}
void frmSysAdmin::ListDomains() {
  lists_->ListObjects(keys::kDomains, nullptr);
}
void frmSysAdmin::ListUsers() {
  lists_->ListObjects(keys::kUsers, nullptr);
}
void frmSysAdmin::ListRoles() {
  lists_->ListObjects(keys::kRoles, nullptr);
}
void frmSysAdmin::ListKDomainUsers(const std::shared_ptr<Corvane::DomainContext>& context, int) {
  lists_->ListObjects(keys::kDomainUsers, context);
}
void frmSysAdmin::ListKDomainGroups(const std::shared_ptr<Corvane::DomainContext>& context) {
  lists_->ListObjects(keys::kDomainGroups, context);
}
void frmSysAdmin::ListKDomainFixGroups() {
  lists_->ListChildNodes(GetTreeNodeIndex());
}

void frmSysAdmin::ctMainForm_trChange(int index) try {
  if (index < 0 || busy_) return;
  const wxString kindKey = tree_->KindKey(index);
  const auto* kind = kinds_->Find(kindKey);
  if (!kind) return;
  {
    const BusyFlag busy(busy_);
    selectedNodeKey_ = Explorer().TreeNodeKey(index);
    if (tree_->IsDomain(index)) lastDomainKey_ = selectedNodeKey_;
    lists_->AddColumn(kindKey);
    // The list will show the domains as they are stored now; the tree must not contradict it.
    if (kindKey == keys::kDomains) refreshHandlers_->ShowStoredDomains();
    if (kind->IsObject())
      lists_->ListObjects(kindKey, domains_->Item(tree_->DomainKey(index)));
    else
      lists_->ListChildNodes(index);
    selectedListIndex_ = -1;
  }
  UpdateCommands();
} catch (...) {
  mindloft::Raise("frmSysAdmin", "ctMainForm_trChange");
}

}  // namespace mindloft
