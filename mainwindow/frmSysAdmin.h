#pragma once

#include <wx/frame.h>
#include <wx/timer.h>

#include <any>
#include <cstdint>
#include <memory>
#include <string>

#include "core/Refresh.h"

namespace mindloft {

class CommandSet;
class ctExplorer;
struct DirectoryKind;
struct ExplorerListState;
class DirectoryLists;
class DirectoryTree;
class DomainContexts;
class MainStatusBar;
class MainToolBar;
class MenuBuilder;
class ObjectCommands;
class ObjectKindRegistry;
class ObjectMenu;
class RefreshHandlers;
class SelectionReader;
class WorkingArea;
namespace Corvane {
class Connection;
class DomainContext;
class Server;
}  // namespace Corvane

/// The administration window: a router between the tree, the lists, the commands, the menus and the status
/// bar, each of which is a class of its own. Closing it logs out.
class frmSysAdmin : public wxFrame {
 public:
  /// Only the working area, for which nobody has to be logged in. Load comes next; nothing else before it but
  /// the destructor.
  frmSysAdmin();
  ~frmSysAdmin() override;
  /// Builds the window for a logged-in connection. `startWithNode`: the saved command line is not blank.
  void Load(std::shared_ptr<Corvane::Connection> connection, bool startWithNode);

  /// Takes over the saved command line of a second instance: selects the node of that text on the next timer
  /// tick and brings the window to the front.
  void HandOver();

  // Tree and list.
  void BuildRoot();
  void DisplayTreeDomains();
  void DisplayDomainFixChild(int domainIndex);
  void AddColumn(const wxString& nodeKey);
  void ListRoot();
  void ListDomains();
  void ListUsers();
  void ListRoles();
  /// `flag` belongs to the procedure's contract; callers pass 0.
  void ListKDomainUsers(const std::shared_ptr<Corvane::DomainContext>& context, int flag);
  void ListKDomainGroups(const std::shared_ptr<Corvane::DomainContext>& context);
  void ListKDomainFixGroups();
  /// Shows the children of the selected node; nothing while the window is busy.
  void ctMainForm_trChange(int index);
  /// Index of the selected node or row; -1: none.
  int GetTreeNodeIndex() const;
  std::int64_t GetListNodeIndex() const;

  // Commands on objects; see ObjectCommands, and ObjectMenu for the menu items' handlers.
  void NewObject(const wxString& kind, const wxString& domainKey, int flag);
  void DeleteObject();
  void SetProperty(const wxString& kind, const wxString& key);

  // Commands, menus, notifications.
  void InitMenu();
  void LoadInfoOnForm();
  void Refresh_Notify(std::int32_t& kind, std::int32_t& action, std::any& object);
  void Refresh_NotifyLanguage();
  /// Enables and checks every command for the present selection.
  void UpdateCommands();
  /// Reads domains, tree and list anew; expansion and selection stay.
  void RefreshAll();
  /// Shows who is logged in in the status bar.
  void ShowUser();
  /// Full screen keeps menus and bars; the position from before it is the one that is remembered.
  void ToggleFullScreen();
  /// Opens the selected row or node: its properties when they can be shown, else its place in the tree.
  void OpenSelected();

  ctExplorer& Explorer();
  ObjectKindRegistry& Kinds() { return *kinds_; }
  CommandSet& Commands() { return *commands_; }
  DirectoryTree& Tree() { return *tree_; }
  WorkingArea& Area() { return *area_; }
  MainToolBar& Tools() { return *toolBar_; }
  MainStatusBar& Status() { return *statusBar_; }
  SelectionReader& Selection() { return *selection_; }
  const std::shared_ptr<Corvane::Connection>& Connection() const { return connection_; }

 private:
  void Form_Load(bool startWithNode);
  void Form_Unload(wxCloseEvent& event);
  void Timer1_Timer();
  void ConnectExplorer();
  void ConnectCommands();
  /// Fills the tree from the domains read last.
  void BuildTree();
  /// Shows everything in the language of now, selection and list as they were. `anew`: in another direction
  /// too.
  void RebuildArea(bool anew);
  /// Shows the selected node's list anew, arranged like that.
  void ReloadList(const ExplorerListState& state);
  void ShowPendingCounts();
  void RunCommand(const wxString& name);
  bool HandleKey(int key, int modifiers);
  void ShowContextMenu(const DirectoryKind* listed, wxPoint screen, bool ofList);

  std::shared_ptr<Corvane::Connection> connection_;
  std::unique_ptr<ObjectKindRegistry> kinds_;
  std::unique_ptr<DomainContexts> domains_;
  std::unique_ptr<WorkingArea> area_;
  std::unique_ptr<DirectoryTree> tree_;
  std::unique_ptr<DirectoryLists> lists_;
  std::unique_ptr<SelectionReader> selection_;
  std::unique_ptr<ObjectCommands> objectCommands_;
  std::unique_ptr<ObjectMenu> objectMenu_;
  std::unique_ptr<CommandSet> commands_;
  std::unique_ptr<MenuBuilder> menus_;
  std::unique_ptr<MainToolBar> toolBar_;
  std::unique_ptr<MainStatusBar> statusBar_;
  std::unique_ptr<RefreshHandlers> refreshHandlers_;
  Refresh::Subscription notify_, beforeLanguage_, notifyLanguage_;
  std::shared_ptr<void> refreshView_;
  wxTimer timer1_;
  std::int32_t pendingNodeIndex_ = -1;
  wxString selectedNodeKey_;  ///< of the tree node whose list is shown
  wxString lastDomainKey_;    ///< of the domain node selected last
  std::int64_t selectedListIndex_ = -1;
  bool countsPending_ = false;  ///< the status bar is behind the list
  bool busy_ = false;           ///< tree or list are being rebuilt: selections mean nothing
};

}  // namespace mindloft
