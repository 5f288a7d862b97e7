#pragma once

#include <memory>
#include <vector>

#include "controls/explorer/ExplorerRows.h"
#include "core/Refresh.h"
#include "core/forms/Form.h"
#include "editors/members/ListOwner.h"

class wxStaticText;

namespace mindloft {

class MemberItems;
class ctExplorer;

/// What the user picker lists.
enum ListKind : int {
  CallersItems = 2,         ///< the caller's items
  UsersNotAccessible = 4,   ///< who could be added to the owner
  CallersItemsByIndex = 5,  ///< the caller's items, in their order
};

/// Lets the user pick any number of users from a list; writes nothing.
///
/// The group and the role editor pass kind 4 with their pending changes: those whom they are about to add are
/// not offered again, and those whom they are about to remove are. Dialogs that have a choice of users of
/// their own pass it with kind 2 (sorted by name) or 5 (in its own order until a heading is clicked). Another
/// kind is an error.
class frmListUser : public FormDialog {
 public:
  explicit frmListUser(wxWindow* parent);

  /// Shows the picker modally. `result` becomes what was picked, in list order, each row with the user's
  /// identifier as its key; empty when the picker was cancelled.
  void OpenWindow(const ListOwner& owner, int kind, const MemberItems& members,
                  std::vector<ExplorerRow>& result);
  void LoadInfoOnForm() override;

 private:
  void Form_Load();
  void DisplayUsers();
  void SelectedItems();
  void ShowCounts();
  void CmdOK_Click();
  void CmdCancel_Click();
  void ctUser_lvItemDblClick();
  void Refresh_NotifyLanguage();

  ListOwner owner_;
  int kind_ = 0;
  const MemberItems* members_ = nullptr;
  std::vector<ExplorerRow> result_;
  std::shared_ptr<ExplorerRows> rows_;
  Refresh::Subscription language_;

  ctExplorer* ctUser = nullptr;
  wxStaticText* lblCount = nullptr;
};

}  // namespace mindloft
