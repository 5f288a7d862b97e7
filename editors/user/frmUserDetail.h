#pragma once

#include <memory>
#include <set>
#include <vector>

#include "backend/corvane/Corvane.h"
#include "controls/explorer/ExplorerRows.h"
#include "editors/PendingChecks.h"
#include "editors/PropertySheet.h"
#include "editors/user/DomainsGroupRows.h"
#include "editors/user/PasswordBoxes.h"
#include "editors/user/UserFields.h"

class wxCheckBox;
class wxStaticText;

namespace mindloft {

class ctExplorer;

/// The property sheet of one user: personal data, password, roles, knowledge domains and their groups.
class frmUserDetail : public PropertySheet {
 public:
  explicit frmUserDetail(wxWindow* parent = nullptr);

  /// Edits the user, who may be new, and returns when the sheet has been closed: wxID_OK or wxID_CANCEL. A
  /// new user who was not stored is still new then; HasSaved tells whether anything was.
  int OpenWindow(std::shared_ptr<Corvane::User> user);
  void LoadInfoOnForm() override;

 protected:
  void SetButtonStatus() override;
  bool HasChanges() const override;
  void cmdApply_Click() override;
  void CmdOK_Click() override;
  void CmdCancel_Click() override;
  void FillPage(int page) override;
  bool MergeConflict(const Error& conflict) override;
  void ShowCaption() override;

 private:
  enum Page { DataPage, RolesPage, DomainsPage };

  // Filling
  void Form_Load();
  void InitLists();
  /// Headings and rows of the lists in the language of now.
  void LoadLists();
  void GetInfo();
  void ShowLastLogin();
  void DisplayRoles();
  void DisplayDomains();
  void DisplayGroups();
  /// Reads the user's domains and groups as they are saved.
  void ReadDomains();
  /// Reads what the filled lists show anew; what has been toggled and not saved stays.
  void InitList();

  // Editing
  void InfoChanged();
  void PasswordChanged();
  void ctRole_lvCheckClick(const ExplorerRow& role);
  void ctDomain_lvCheckClick(const ExplorerRow& domain);
  void ctGroup_lvCheckClick(const ExplorerRow& group);
  /// Unchecks the groups that must follow a domain that was unchecked.
  void CheckUserGroup(ObjectId domain);
  void ToggleGroup(ObjectId group, ObjectId domain);
  void cmdResetPwd_Click();
  /// Whether the logged-in user may change the memberships in the domain; tells when not.
  bool MayChangeDomain(ObjectId domain, std::uint32_t privilege);

  // Saving
  /// The three checks before a save; they warn and do not stop it.
  void WarnOfData();
  void WarnOfField(FramedTextBox& box, int message, const std::vector<wxString>& parameters = {});
  /// False when nothing was saved because the two passwords differ.
  bool SaveUser();
  void SetUserInfo();
  void StoreUser();
  void SaveRoles();
  void SaveDomains();
  void SaveUserGroup();
  void ResetPassword(bool& ok);

  std::shared_ptr<Corvane::User> user_;
  bool changed_ = false;
  bool infoChanged_ = false;
  bool rolesChanged_ = false;
  bool groupsChanged_ = false;
  bool passwordChanged_ = false;
  bool editingOwnAccount_ = false;
  bool settingPassword_ = false;  ///< a conflict is about the password too

  std::unique_ptr<UserFields> fields_;
  std::unique_ptr<PasswordBoxes> password_;
  PendingChecks roles_, domains_;
  std::vector<DomainRecord> savedDomains_;
  PendingChecks changedGroups_;  ///< the groups toggled and not yet saved, besides the saved ones
  std::shared_ptr<DomainsGroupRows> groupRows_;

  wxButton* cmdResetPwd = nullptr;
  wxCheckBox* chkEnabled = nullptr;
  wxStaticText* txtLastLogin = nullptr;
  ctExplorer* ctRole = nullptr;
  ctExplorer* ctDomain = nullptr;
  ctExplorer* ctGroup = nullptr;
};

}  // namespace mindloft
