#include "mainwindow/frmSysAdmin.h"

#include <wx/iconbndl.h>
#include <wx/menu.h>

#include <utility>

#include "backend/corvane/Corvane.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ExplorerLists.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryImages.h"
#include "controls/rows/DirectoryTexts.h"
#include "core/ErrorHandling.h"
#include "core/forms/Form.h"
#include "core/modShare.h"
#include "mainwindow/ApplicationServices.h"
#include "mainwindow/BarMemory.h"
#include "mainwindow/BusyFlag.h"
#include "mainwindow/CommandLineState.h"
#include "mainwindow/CommandSet.h"
#include "mainwindow/DirectoryLists.h"
#include "mainwindow/DirectoryTree.h"
#include "mainwindow/DomainContexts.h"
#include "mainwindow/KindCommands.h"
#include "mainwindow/LanguageMenu.h"
#include "mainwindow/MainCommands.h"
#include "mainwindow/MainStatusBar.h"
#include "mainwindow/MainToolBar.h"
#include "mainwindow/MenuBuilder.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "mainwindow/RefreshHandlers.h"
#include "mainwindow/SelectionReader.h"
#include "mainwindow/Texts.h"
#include "mainwindow/TreeKeys.h"
#include "mainwindow/WorkingArea.h"
#include "mainwindow/objects/ObjectCommands.h"
#include "mainwindow/objects/ObjectMenu.h"
#include "platform/ui/MouseWheel.h"
#include "platform/ui/WindowHelpers.h"

namespace mindloft {

namespace {

/// Between the choice of a node and its selection, in milliseconds: work in progress goes first.
constexpr int kTimerInterval = 50;

}  // namespace

frmSysAdmin::frmSysAdmin(std::shared_ptr<Corvane::Connection> connection, bool startWithNode)
    : connection_(std::move(connection)), timer1_(this) {
  LoadFrameForm(*this, nullptr, "frmSysAdmin");
  SetIcons(WindowIcons());
  const auto server = GetApplication()->Server();
  kinds_ = std::make_unique<ObjectKindRegistry>();
  RegisterObjectKinds(*kinds_);
  domains_ = std::make_unique<DomainContexts>(server->KDomains());
  area_ = std::make_unique<WorkingArea>(*this);
  tree_ = std::make_unique<DirectoryTree>(*area_, *domains_);
  lists_ = std::make_unique<DirectoryLists>(*area_, *kinds_, *tree_, server);
  selection_ = std::make_unique<SelectionReader>(*area_, *kinds_, *tree_, *domains_, *lists_);
  commands_ = std::make_unique<CommandSet>();
  AddMainCommands(*commands_, *this);
  objectCommands_ = std::make_unique<ObjectCommands>(*this, *kinds_, *domains_, *selection_);
  objectMenu_ = std::make_unique<ObjectMenu>(*objectCommands_, *selection_);
  AddKindCommands(*commands_, *kinds_, *objectMenu_);
  menus_ = std::make_unique<MenuBuilder>(*this, *commands_, *kinds_);
  toolBar_ = std::make_unique<MainToolBar>(*this, *commands_);
  statusBar_ = std::make_unique<MainStatusBar>(*this);
  refreshHandlers_ = std::make_unique<RefreshHandlers>(*this, *domains_);
  Form_Load(startWithNode);
}

frmSysAdmin::~frmSysAdmin() = default;

void frmSysAdmin::Form_Load(bool startWithNode) try {
  platform::Hook2(this);
  LoadInfoOnForm();
  LoadFormPos(*this, false);
  SpecifyBreakChar(Explorer());
  InitMenu();
  const auto refresh = GetRefresh();
  notify_ = refresh->OnNotify([this](auto& kind, auto& action, auto& object) {
    Guarded("frmSysAdmin", "Refresh_Notify", [&] { Refresh_Notify(kind, action, object); });
  });
  notifyLanguage_ = refresh->OnNotifyLanguage(
      [this] { Guarded("frmSysAdmin", "Refresh_NotifyLanguage", [&] { Refresh_NotifyLanguage(); }); });
  // Whose members have changed is in no list, but what the user may do can depend on it.
  refreshView_ = GetUtility().OnRefresh([this] {
    Explorer().RefreshList();
    UpdateCommands();
  });
  pendingNodeIndex_ = -1;
  ConnectExplorer();
  ConnectCommands();
  BuildTree();
  // The root's list comes from the tree alone, so that the window opens without waiting for any rows.
  Explorer().ExpandTreeNode(0);
  Explorer().SelectTreeNode(0);
  area_->LoadBorder();
  LoadBars(*toolBar_, *statusBar_);
  ShowUser();
  Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Timer1_Timer(); });
  Bind(wxEVT_CLOSE_WINDOW, &frmSysAdmin::Form_Unload, this);
  if (startWithNode) timer1_.Start(kTimerInterval);
} catch (...) {
  mindloft::Raise("frmSysAdmin", "Form_Load");
}

void frmSysAdmin::Form_Unload(wxCloseEvent& event) try {
  platform::Unhook2(this);
  if (!Shutdown(this) && event.CanVeto()) {
    event.Veto();
    platform::Hook2(this);
    return;
  }
  timer1_.Stop();
  notify_.reset();
  notifyLanguage_.reset();
  refreshView_.reset();
  area_->Disconnect();
  busy_ = true;
  connection_->Logout();
  // In full screen the position from before it has been saved already.
  if (!IsFullScreen()) SetFormPos(*this);
  area_->SaveBorder();
  SaveBars(*toolBar_, *statusBar_);
  Destroy();
} catch (...) {
  ShowError("frmSysAdmin", "Form_Unload");
  Destroy();
}

void frmSysAdmin::Timer1_Timer() try {
  timer1_.Stop();
  auto& explorer = Explorer();
  const int count = explorer.TreeNodeCount();
  for (const int index : {0, 1})
    if (index < count) explorer.ExpandTreeNode(index);
  const int pending = std::exchange(pendingNodeIndex_, -1);
  if (pending >= 0 && pending < count) {
    explorer.SelectTreeNode(pending);
    explorer.ExpandTreeNode(pending);
    GetUtility().Log("start: selected node \"" + ToUtf8(explorer.TreeNodeText(pending)) + "\"");
  }
} catch (...) {
  ShowError("frmSysAdmin", "Timer1_Timer");
}

void frmSysAdmin::HandOver() try {
  const wxString& sought = SavedCommandLine();
  if (!sought.empty()) {
    const int count = Explorer().TreeNodeCount();
    // Up to and including the number of nodes: a place past the last one simply has no text.
    for (int index = 0; index <= count; ++index) {
      if (index == count || !sought.IsSameAs(Explorer().TreeNodeText(index), false)) continue;
      pendingNodeIndex_ = index;
      timer1_.Start(kTimerInterval);
      break;
    }
  }
  wxString caption =
      GetRegistry().GetString(platform::RegistryRoot::LocalMachine,
                              "SOFTWARE\\Ordwell\\Mindloft\\Resource\\Forms\\frmSysAdmin", wxString(), 2000);
  if (caption.empty()) caption = GetTitle();
  if (const auto& activate = GetApplicationServices().activeMindloft) {
    const wxString windowClass = platform::ClassNameOf(platform::HandleOf(this));
    // The stored caption is of the language of the installation.
    if (!GetTitle().EndsWith(caption)) activate(GetTitle(), windowClass);
    activate(caption, windowClass);
  }
} catch (...) {
  ShowError("frmSysAdmin", "HandOver");
}

void frmSysAdmin::LoadInfoOnForm() try {
  GetResource().LoadInfoOnForm(*this);
  const bool mirrored = GetLayoutDirection() == wxLayout_RightToLeft;
  if (GetMenuBar() && mirrored != GetResource().IsRightToLeft()) return RebuildArea();
  Explorer().SetSearchHint(GetResource().GetString(texts::kSearchHint));
  // At start the parts below are not there yet; they are made in the current language.
  if (!GetMenuBar()) return;
  InitMenu();
  tree_->ReloadCaptions();
  ReloadList(Explorer().ListState());
  ShowUser();
} catch (...) {
  mindloft::Raise("frmSysAdmin", "LoadInfoOnForm");
}

void frmSysAdmin::RebuildArea() {
  const auto state = tree_->Remember();
  const auto list = Explorer().ListState();
  {
    const BusyFlag busy(busy_);
    ApplyLayoutDirection(*this);
    area_->Rebuild();
    SpecifyBreakChar(Explorer());
    Explorer().SetSearchHint(GetResource().GetString(texts::kSearchHint));
    InitMenu();
    ConnectExplorer();
    tree_->BuildRoot();
    tree_->DisplayTreeDomains();
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

void frmSysAdmin::InitMenu() try {
  menus_->BuildMenuBar();
  toolBar_->Build();
  statusBar_->Build();
} catch (...) {
  mindloft::Raise("frmSysAdmin", "InitMenu");
}

void frmSysAdmin::ConnectExplorer() {
  auto& explorer = Explorer();
  explorer.trChange = [this](int index) { ctMainForm_trChange(index); };
  explorer.trContextMenu = [this](int index, wxPoint screen) {
    Explorer().SelectTreeNode(index);
    ShowContextMenu(selection_->Read().listed, screen, false);
  };
  explorer.lvContextMenu = [this](wxPoint screen) {
    ShowContextMenu(selection_->Read().listed, screen, true);
  };
  explorer.lvSelChange = [this] {
    selectedListIndex_ = Explorer().FocusedListRow();
    UpdateCommands();
  };
  explorer.lvItemDblClick = [this](std::int64_t) { OpenSelected(); };
  explorer.lvCountChange = [this] { UpdateCommands(); };
  explorer.keyDown = [this](int key, int modifiers) { return HandleKey(key, modifiers); };
}

// These keys are not in the menu: there they would take them from the search box.
bool frmSysAdmin::HandleKey(int key, int modifiers) {
  if (modifiers != wxMOD_NONE) return false;
  switch (key) {
    case WXK_INSERT:
    case WXK_NUMPAD_INSERT:
      RunCommand("mnuFileNew");
      return true;
    case WXK_DELETE:
    case WXK_NUMPAD_DELETE:
      // Also where the menu item is disabled: a key has no other way to tell why nothing happens.
      Guarded("frmSysAdmin", "mnuFileDelete_Click", [this] { objectMenu_->mnuFileDelete_Click(); });
      UpdateCommands();
      return true;
    default:
      return false;
  }
}

void frmSysAdmin::ConnectCommands() {
  Bind(wxEVT_MENU, [this](wxCommandEvent& event) {
    const int id = event.GetId();
    if (const auto* command = commands_->FindById(id)) return RunCommand(command->name);
    if (const int language = LanguageMenu::LanguageOf(id))
      return Guarded("frmSysAdmin", "mnuViewLanguage_Click", [&] { LanguageMenu::Switch(language); });
    for (int column = 0; column < MenuBuilder::kMostSortColumns; ++column)
      if (id == MenuBuilder::SortItemId(column))
        return Guarded("frmSysAdmin", "mnuViewSort_Click", [&] {
          Explorer().SortBy(column, false);
          UpdateCommands();
        });
    event.Skip();
  });
  Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
    event.Skip();
    Guarded("frmSysAdmin", "ShowPendingCounts", [this] { ShowPendingCounts(); });
  });
  Bind(wxEVT_MENU_OPEN, [this](wxMenuEvent& event) {
    event.Skip();
    // Sorting and the bars can change without a selection.
    Guarded("frmSysAdmin", "MenuOpen", [this] {
      menus_->ListLanguages();
      UpdateCommands();
    });
  });
}

void frmSysAdmin::RunCommand(const wxString& name) {
  if (const auto* command = commands_->Find(name)) commands_->Run(*command, selection_->Read());
  // The command may have closed the window.
  if (!IsBeingDeleted()) UpdateCommands();
}

void frmSysAdmin::ShowContextMenu(const DirectoryKind* listed, wxPoint screen, bool ofList) {
  const auto menu = menus_->ContextMenu(listed, selection_->Read(), ofList);
  PopupMenu(menu.get(), ScreenToClient(screen));
}

void frmSysAdmin::UpdateCommands() try {
  if (busy_ || !GetMenuBar()) return;
  const auto selection = selection_->Read();
  std::vector<MenuBuilder::SortColumn> columns;
  for (const auto& column : Explorer().Columns())
    columns.push_back({column.caption, lists_->CanSort(static_cast<int>(columns.size()))});
  menus_->ShowSortColumns(columns, Explorer().SortColumn(), Explorer().SortDescending());
  menus_->Update(selection);
  toolBar_->Update(selection);
  countsPending_ = true;
} catch (...) {
  mindloft::Raise("frmSysAdmin", "UpdateCommands");
}

void frmSysAdmin::ShowPendingCounts() {
  // The status bar paints at once whatever waits to be painted. Before the layout has caught up with a change
  // of the list, that would be too early; when the toolkit is idle, it has.
  if (!std::exchange(countsPending_, false) || busy_ || !GetStatusBar()) return;
  statusBar_->ShowCounts(Explorer().ListCount(), Explorer().ListTotalCount(), !Explorer().Filter().empty(),
                         Explorer().SelectedListCount());
}

void frmSysAdmin::ShowUser() {
  const auto user = connection_->CurrentUser();
  statusBar_->ShowUser(user ? ToWx(user->Name()) : wxString());
}

void frmSysAdmin::ToggleFullScreen() {
  const bool on = !IsFullScreen();
  if (on) SetFormPos(*this);
  ShowFullScreen(on, wxFULLSCREEN_NOBORDER | wxFULLSCREEN_NOCAPTION);
}

void frmSysAdmin::OpenSelected() {
  const auto* properties = commands_->Find("mnuFileProperties");
  const auto selection = selection_->Read();
  if (CommandSet::Enabled(*properties, selection)) return commands_->Run(*properties, selection);
  const auto keys = selection_->ListKeys();
  const int node = keys.size() == 1 ? tree_->Child(GetTreeNodeIndex(), keys.front()) : -1;
  if (node < 0) return;
  Explorer().SelectTreeNode(node);
  Explorer().ExpandTreeNode(node);
}

void frmSysAdmin::NewObject(const wxString& kind, const wxString& domainKey, int flag) {
  objectCommands_->NewObject(kind, domainKey, flag);
}
void frmSysAdmin::DeleteObject() {
  objectCommands_->DeleteObject();
}
void frmSysAdmin::SetProperty(const wxString& kind, const wxString& key) {
  objectCommands_->SetProperty(kind, key);
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

int frmSysAdmin::GetTreeNodeIndex() const {
  return area_->Explorer().SelectedTreeNode();
}
std::int64_t frmSysAdmin::GetListNodeIndex() const {
  return selectedListIndex_;
}
ctExplorer& frmSysAdmin::Explorer() {
  return area_->Explorer();
}

}  // namespace mindloft
