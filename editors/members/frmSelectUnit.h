#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "controls/explorer/ExplorerRows.h"
#include "core/Refresh.h"
#include "core/forms/Form.h"

class wxStaticText;

namespace mindloft {

namespace Corvane {
class User;
}
class ctExplorer;

/// Shows users, those that lack something marked by their image, and lets the user pick any number of them;
/// writes nothing.
///
/// The member lists of the sheets open it when disabled accounts are among those who were picked: the
/// privileges of a group or role are of no use to them, and once they are enabled again they would have them
/// unnoticed.
class frmSelectUnit : public FormDialog {
 public:
  using Users = std::vector<std::shared_ptr<Corvane::User>>;
  /// Whether a user lacks it.
  using Flag = std::function<bool(const Corvane::User& user)>;

  /// Without a flag the disabled accounts are marked: whatever privileges they were given, they cannot use
  /// them.
  explicit frmSelectUnit(wxWindow* parent, Flag lacks = {});

  /// Shows the users modally, those who lack nothing selected; the keys of the selected ones, in list order.
  /// None when it was cancelled.
  std::vector<wxString> Display(const Users& users);
  void LoadInfoOnForm() override;

 private:
  void Form_Load();
  void ShowAllUser();
  void SelectThoseWithoutMark();
  void CmdOK_Click();
  void CmdCancel_Click();
  void ctNotPrivilege_lvItemDblClick();
  void Refresh_NotifyLanguage();

  Flag lacks_;
  Users users_;
  std::vector<wxString> result_;
  std::shared_ptr<ExplorerRows> rows_;
  Refresh::Subscription language_;

  ctExplorer* ctNotPrivilege = nullptr;
  wxStaticText* lblMarked = nullptr;
  wxStaticText* lblCount = nullptr;
};

}  // namespace mindloft
