#include "mainwindow/frmSysAdmin.h"

#include <wx/iconbndl.h>

#include <utility>

#include "backend/corvane/Corvane.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ExplorerLists.h"
#include "controls/explorer/ctExplorer.h"
#include "core/ErrorHandling.h"
#include "core/forms/Form.h"
#include "core/forms/Images.h"
#include "core/modShare.h"
#include "editors/SessionLanguage.h"
#include "mainwindow/ApplicationServices.h"
#include "mainwindow/BarMemory.h"
#include "mainwindow/CommandLineState.h"
#include "mainwindow/CommandSet.h"
#include "mainwindow/DirectoryLists.h"
#include "mainwindow/DirectoryTree.h"
#include "mainwindow/DomainContexts.h"
#include "mainwindow/KindCommands.h"
#include "mainwindow/MainCommands.h"
#include "mainwindow/MainStatusBar.h"
#include "mainwindow/MainToolBar.h"
#include "mainwindow/MenuBuilder.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "mainwindow/RefreshHandlers.h"
#include "mainwindow/SelectionReader.h"
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

frmSysAdmin::frmSysAdmin() : timer1_(this) {
  LoadFrameForm(*this, nullptr, "frmSysAdmin");
  SetIcons(WindowIcons());
  area_ = std::make_unique<WorkingArea>(*this);
}

frmSysAdmin::~frmSysAdmin() = default;

void frmSysAdmin::Load(std::shared_ptr<Corvane::Connection> connection, bool startWithNode) {
  connection_ = std::move(connection);
  const auto server = GetApplication()->Server();
  kinds_ = std::make_unique<ObjectKindRegistry>();
  RegisterObjectKinds(*kinds_);
  domains_ = std::make_unique<DomainContexts>(server->KDomains());
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
  beforeLanguage_ = refresh->BeforeNotifyLanguage(SetSessionLanguage);
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
  // Whoever works by the keyboard begins there; on some desktops nothing would have the focus.
  Explorer().FocusTree();
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
  beforeLanguage_.reset();
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
