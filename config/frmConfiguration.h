#pragma once

#include "backend/tessaline/Resource.h"
#include "core/Refresh.h"
#include "core/forms/Form.h"

class wxButton;
class wxCheckBox;
class wxChoice;
class wxComboBox;
class wxPanel;
class wxRadioButton;

namespace mindloft {

class UseTextBox;
class UserTextNumber;

/// How the console reaches its server, on the local network or through the web, and in which language it
/// speaks. It reads and writes client settings only; the server itself is never asked.
///
/// Three boxes keep the names of an earlier purpose: `txtFTPServerName` is the web time-out, `txtFTPUserName`
/// and `txtFTPPassWord` are the proxy's user and password.
class frmConfiguration : public FormDialog {
 public:
  explicit frmConfiguration(wxWindow* parent);
  void LoadInfoOnForm() override;

 private:
  void FindControls();
  void BindHandlers();
  /// `procedure` is the handler's name in error reports: what `box` holds has been edited.
  template <typename Box>
  void BindChange(Box* box, const char* procedure);
  void BindNarrowTyping(UseTextBox* box);

  // Loading.
  void Form_Load();
  void LoadSettings();
  void DisplayLanguages();
  void LoadAddress();

  // Saving.
  void SetRegInfo();
  void SetUpLanguage();
  void Address();
  /// The language of the selected entry; 0 when none is selected.
  int SelectedLanguage() const;

  // What the user does.
  void OptLan_Click();
  void OptWeb_Click();
  void ChkProx_Click();
  void chkSecurityMode_Click();
  void cboLanguage_Click();
  void cmbAddress_Change();
  void cmbAddress_Click();
  void cmdAddress_Click();
  void cmdApply_Click();
  void CmdOK_Click();
  void CmdCancel_Click();
  void Refresh_NotifyLanguage();

  void ChkProx_ValueChanged();
  void SetButtonStatus();
  void SetChanged();
  void ShowFrame(bool web);
  void AddAddresses(const wxArrayString& urls);

  bool Changed = false;          ///< something was edited
  bool LanguageChanged = false;  ///< a language was picked
  Refresh::Subscription language_;

  wxRadioButton* OptLan = nullptr;
  wxRadioButton* OptWeb = nullptr;
  wxPanel* picLan = nullptr;
  UseTextBox* txtConfigurationServer = nullptr;
  UserTextNumber* txtPort = nullptr;
  wxPanel* picWeb = nullptr;
  wxComboBox* cmbAddress = nullptr;
  UserTextNumber* txtFTPServerName = nullptr;
  wxCheckBox* chkSecurityMode = nullptr;
  wxCheckBox* ChkProx = nullptr;
  UseTextBox* TxtProxIP = nullptr;
  UseTextBox* TxtProxPort = nullptr;
  UseTextBox* txtFTPUserName = nullptr;
  UseTextBox* txtFTPPassWord = nullptr;
  wxChoice* cboLanguage = nullptr;
  wxButton* cmdOk = nullptr;
  wxButton* cmdApply = nullptr;
};

}  // namespace mindloft
