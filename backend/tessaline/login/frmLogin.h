#pragma once

#include <wx/timer.h>

#include <string>

#include "backend/errors/Error.h"
#include "backend/tessaline/login/LoginDelay.h"
#include "backend/tessaline/login/LoginFields.h"
#include "core/Refresh.h"
#include "core/forms/Form.h"

class wxButton;
class wxChoice;
class wxStaticText;
class wxTextCtrl;

namespace mindloft {

class LoginTarget;

/// Asks for name, password and server, and logs the process's Connection in. What fails is told in the form
/// itself, so that one can try again at once.
class frmLogin : public FormDialog {
 public:
  /// The result of ShowModal when the form must be made again for a language of the other reading direction.
  /// The result is wxID_OK once the user is logged in, else wxID_CANCEL.
  static constexpr int kReopen = wxID_REFRESH;

  /// Both references must outlive the form; the fields are kept up to date for a form made again.
  frmLogin(wxWindow* owner, LoginFields& fields, LoginDelay& delay);
  void LoadInfoOnForm() override;

 private:
  void BindHandlers();
  void LoadLanguages();
  void Form_Activate(wxActivateEvent& event);
  void cmdOK_Click(wxCommandEvent& event);
  void cmdCreate_Click(wxCommandEvent& event);
  void cmdSettings_Click(wxCommandEvent& event);
  void cboLanguage_Click(wxCommandEvent& event);
  void Refresh_NotifyLanguage();
  /// Ends the form for one in the present reading direction, if that is another.
  void ReopenIfMirrored();
  void txtServer_Change(wxCommandEvent& event);
  void Form_KeyUp(wxKeyEvent& event);
  void Timer1_Timer(wxTimerEvent& event);

  /// Logs in; what goes wrong is shown. True when the user is logged in.
  bool TryLogin(const wxString& name, const std::string& password);
  void ShowFailure(const Error& error);
  void StartDelay(const Error& error);
  /// Where the login leads, and whether it can be tried now.
  void SetButtonStatus();
  void ShowMessage(const wxString& text, const wxString& details = {});
  void ShowCapsLock();
  void ShowCapsLockRow(bool shown);
  void FitToTexts();
  LoginTarget Target() const;

  LoginFields& fields_;
  LoginDelay& delay_;
  Refresh::Subscription language_;
  bool isMirrored_;              ///< the reading direction that the form was made in
  bool isSettingsOpen_ = false;  ///< the form of the connection settings is over this one
  wxTimer Timer1;
  wxStaticText* txtWhere = nullptr;
  wxTextCtrl* txtName = nullptr;
  wxTextCtrl* txtPassword = nullptr;
  wxStaticText* lblCapsLock = nullptr;
  wxTextCtrl* txtServer = nullptr;
  wxChoice* cboLanguage = nullptr;
  wxStaticText* lblMessage = nullptr;
  wxButton* cmdCreate = nullptr;
  wxButton* cmdOK = nullptr;
};

}  // namespace mindloft
