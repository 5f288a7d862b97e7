// The commands of the main window: keys, menus and their state.
#include <wx/menu.h>

#include <utility>

#include "controls/explorer/ctExplorer.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"
#include "mainwindow/CommandSet.h"
#include "mainwindow/DirectoryLists.h"
#include "mainwindow/DirectoryTree.h"
#include "mainwindow/LanguageMenu.h"
#include "mainwindow/MainStatusBar.h"
#include "mainwindow/MainToolBar.h"
#include "mainwindow/MenuBuilder.h"
#include "mainwindow/SelectionReader.h"
#include "mainwindow/frmSysAdmin.h"
#include "mainwindow/objects/ObjectCommands.h"
#include "mainwindow/objects/ObjectMenu.h"

namespace mindloft {

void frmSysAdmin::InitMenu() try {
  menus_->BuildMenuBar();
  toolBar_->Build();
  statusBar_->Build();
} catch (...) {
  mindloft::Raise("frmSysAdmin", "InitMenu");
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

void frmSysAdmin::ToggleFullScreen() {
  const bool on = !IsFullScreen();
  if (on) SetFormPos(*this);
  ShowFullScreen(on, wxFULLSCREEN_NOBORDER | wxFULLSCREEN_NOCAPTION);
}

void frmSysAdmin::OpenSelected() {
  const auto* properties = commands_->Find("mnuFileProperties");
  const auto selection = selection_->Read();
  if (CommandSet::Enabled(*properties, selection)) return commands_->Run(*properties, selection);
  if (Explorer().SelectedListCount() != 1) return;
  const auto keys = selection_->ListKeys();
  const int node = keys.empty() ? -1 : tree_->Child(GetTreeNodeIndex(), keys.front());
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

}  // namespace mindloft
