#include "backend/tessaline/login/frmLogin.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include <cstdlib>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "backend/tessaline/login/LoginHint.h"
#include "backend/tessaline/login/LoginProblem.h"
#include "backend/tessaline/login/LoginTarget.h"
#include "backend/tessaline/login/SecretText.h"
#include "backend/tessaline/login/SettingsForm.h"
#include "backend/tessaline/login/frmCreateDirectory.h"
#include "core/ErrorHandling.h"
#include "core/Refresh.h"
#include "platform/ui/Keyboard.h"

namespace mindloft {
namespace {

constexpr int kTooManyFailures = 61206;
constexpr int kNoDirectory = 61207;
constexpr int kNameIsMissing = 61209;
constexpr int kSystemFailure = 61210;
constexpr int kLanguageIsDamaged = 61440;
/// Of the countdown; fine enough that no second is skipped.
constexpr int kTickMilliseconds = 200;

}  // namespace

frmLogin::frmLogin(wxWindow* owner, LoginFields& fields, LoginDelay& delay)
    : FormDialog(owner, "frmLogin"),
      fields_(fields),
      delay_(delay),
      isMirrored_(GetResource().IsRightToLeft()),
      Timer1(this) {
  txtWhere = Find<wxStaticText>("txtWhere");
  txtName = Find<wxTextCtrl>("txtName");
  txtPassword = Find<wxTextCtrl>("txtPassword");
  lblCapsLock = Find<wxStaticText>("lblCapsLock");
  txtServer = Find<wxTextCtrl>("txtServer");
  cboLanguage = Find<wxChoice>("cboLanguage");
  lblMessage = Find<wxStaticText>("lblMessage");
  cmdCreate = Find<wxButton>("cmdCreate");
  cmdOK = Find<wxButton>("cmdOK");
  SetButtons("cmdOK", "cmdCancel");

  txtName->ChangeValue(fields_.userName);
  txtServer->ChangeValue(fields_.server);
  LoadLanguages();
  ShowCapsLockRow(false);
  Find<wxButton>("cmdSettings")->Show(static_cast<bool>(GetSettingsForm()));
  LoadInfoOnForm();
  BindHandlers();
  txtName->SelectAll();
  (cmdCreate->IsShown() ? static_cast<wxWindow*>(cmdCreate) : txtName)->SetFocus();
  CentreOnParent();
}

void frmLogin::BindHandlers() {
  cmdOK->Bind(wxEVT_BUTTON, &frmLogin::cmdOK_Click, this);
  cmdCreate->Bind(wxEVT_BUTTON, &frmLogin::cmdCreate_Click, this);
  Find<wxButton>("cmdSettings")->Bind(wxEVT_BUTTON, &frmLogin::cmdSettings_Click, this);
  cboLanguage->Bind(wxEVT_CHOICE, &frmLogin::cboLanguage_Click, this);
  language_ = GetRefresh()->OnNotifyLanguage([this] { Refresh_NotifyLanguage(); });
  txtServer->Bind(wxEVT_TEXT, &frmLogin::txtServer_Change, this);
  for (auto* field : {txtName, txtPassword}) field->Bind(wxEVT_KEY_UP, &frmLogin::Form_KeyUp, this);
  Bind(wxEVT_ACTIVATE, &frmLogin::Form_Activate, this);
  Bind(wxEVT_TIMER, &frmLogin::Timer1_Timer, this);
}

void frmLogin::LoadLanguages() {
  auto& resource = GetResource();
  cboLanguage->Clear();
  for (const int code : resource.Languages()) {
    cboLanguage->Append(resource.LanguageName(code));
    if (code == resource.CurrentLanguage()) cboLanguage->SetSelection(cboLanguage->GetCount() - 1);
  }
}

void frmLogin::LoadInfoOnForm() try {
  FormDialog::LoadInfoOnForm();
  if (fields_.titleNumber) fields_.title = GetResource().GetString(fields_.titleNumber);
  if (!fields_.title.empty()) SetTitle(fields_.title + L" \u2013 " + GetTitle());
  ShowMessage({});
  SetButtonStatus();
} catch (...) {
  mindloft::Raise("frmLogin", "LoadInfoOnForm");
}

void frmLogin::Form_Activate(wxActivateEvent& event) try {
  event.Skip();
  if (!event.GetActive()) return;
  // Another console may have made the directory meanwhile.
  SetButtonStatus();
  ShowCapsLock();
} catch (...) {
  ShowError("frmLogin", "Form_Activate");
}

void frmLogin::cmdOK_Click(wxCommandEvent&) try {
  if (delay_.SecondsLeft() > 0) return;
  const wxString name = txtName->GetValue().Trim(true).Trim(false);
  if (name.empty()) {
    ShowMessage(GetResource().GetString(kNameIsMissing));
    txtName->SetFocus();
    return;
  }
  const SecretText password(*txtPassword);
  if (TryLogin(name, password.Utf8())) EndModal(wxID_OK);
} catch (...) {
  SetButtonStatus();
  ShowError("frmLogin", "cmdOK_Click");
}

bool frmLogin::TryLogin(const wxString& name, const std::string& password) {
  const wxBusyCursor busy;
  try {
    const auto connection = GetConnection();
    Target().Apply(*connection);
    if (connection->Login(ToUtf8(name), password)) return true;
    ShowFailure(Error(ErrorNumber::LoginFailed));
  } catch (...) {
    // Told in the form, where it can be mended, rather than by the error dialog.
    const Error error = CurrentError();
    ReportOnly("frmLogin", "TryLogin");
    ShowFailure(error);
  }
  return false;
}

void frmLogin::ShowFailure(const Error& error) {
  if (error.Number() == ErrorNumber::LoginDelayed) {
    StartDelay(error);
    return;
  }
  const auto problem = LoginProblem::Of(error, kSystemFailure);
  ShowMessage(problem.text, problem.details);
  SetButtonStatus();
  if (error.Number() == ErrorNumber::LoginFailed) txtPassword->ChangeValue({});
  if (!cmdCreate->IsShown()) txtPassword->SetFocus();
}

void frmLogin::StartDelay(const Error& error) {
  // The password was not looked at: it stays for the next try.
  txtPassword->SetFocus();
  delay_.Start(error.Parameters().empty() ? 1 : std::atoi(error.Parameters()[0].c_str()));
  SetButtonStatus();
}

void frmLogin::cmdCreate_Click(wxCommandEvent&) try {
  frmCreateDirectory form(this, fields_.directoryFile, txtName->GetValue());
  const bool created = form.ShowModal() == wxID_OK;
  SetButtonStatus();
  if (!created) return;
  txtName->ChangeValue(form.AdministratorName());
  if (TryLogin(form.AdministratorName(), form.Password())) EndModal(wxID_OK);
} catch (...) {
  SetButtonStatus();
  ShowError("frmLogin", "cmdCreate_Click");
}

void frmLogin::cmdSettings_Click(wxCommandEvent&) try {
  isSettingsOpen_ = true;
  GetSettingsForm()(this);
  isSettingsOpen_ = false;
  // The new target; who left the settings as they were keeps what has been typed.
  const wxString server = LoginTarget::ServerOfSettings();
  if (server != fields_.storedServer) txtServer->ChangeValue(server);
  fields_.storedServer = server;
  ShowMessage({});
  SetButtonStatus();
  ReopenIfMirrored();
} catch (...) {
  isSettingsOpen_ = false;
  SetButtonStatus();
  ShowError("frmLogin", "cmdSettings_Click");
}

void frmLogin::cboLanguage_Click(wxCommandEvent&) try {
  auto& resource = GetResource();
  const auto languages = resource.Languages();
  const auto selected = static_cast<std::size_t>(cboLanguage->GetSelection());
  if (selected >= languages.size() || languages[selected] == resource.CurrentLanguage()) return;
  if (!resource.SwitchLanguage(languages[selected])) {
    ShowMessage(resource.GetFormatString(kLanguageIsDamaged, {resource.LastProblem()}));
    return;
  }
  GetRefresh()->NotifyLanguage();
} catch (...) {
  ShowError("frmLogin", "cboLanguage_Click");
}

void frmLogin::Refresh_NotifyLanguage() try {
  LoadLanguages();
  LoadInfoOnForm();
  if (!isSettingsOpen_) ReopenIfMirrored();
} catch (...) {
  ShowError("frmLogin", "Refresh_NotifyLanguage");
}

void frmLogin::ReopenIfMirrored() {
  // A window takes its reading direction when it is made.
  if (GetResource().IsRightToLeft() == isMirrored_) return;
  fields_.userName = txtName->GetValue();
  fields_.server = txtServer->GetValue();
  EndModal(kReopen);
}

void frmLogin::txtServer_Change(wxCommandEvent&) try {
  ShowMessage({});
  SetButtonStatus();
} catch (...) {
  ShowError("frmLogin", "txtServer_Change");
}

void frmLogin::Form_KeyUp(wxKeyEvent& event) try {
  event.Skip();
  ShowCapsLock();
} catch (...) {
  ShowError("frmLogin", "Form_KeyUp");
}

void frmLogin::Timer1_Timer(wxTimerEvent&) try { SetButtonStatus(); } catch (...) {
  Timer1.Stop();
  ShowError("frmLogin", "Timer1_Timer");
}

void frmLogin::SetButtonStatus() {
  const auto target = Target();
  if (txtWhere->GetLabelText() != target.Description()) {
    txtWhere->SetLabelText(target.Description());
    txtWhere->SetToolTip(target.Description());
  }
  const bool missing = target.IsMissing();
  const int seconds = delay_.SecondsLeft();
  if (cmdCreate->IsShown() != missing) {
    cmdCreate->Show(missing);
    (missing ? cmdCreate : cmdOK)->SetDefault();
    ShowMessage(missing ? GetResource().GetString(kNoDirectory) : wxString());
  }
  if (seconds > 0) {
    ShowMessage(GetResource().GetFormatString(kTooManyFailures, {wxString::Format("%d", seconds)}));
    if (!Timer1.IsRunning()) Timer1.Start(kTickMilliseconds);
  } else if (Timer1.IsRunning()) {
    Timer1.Stop();
    ShowMessage({});
  }
  cmdOK->Enable(!missing && seconds == 0);
}

void frmLogin::ShowMessage(const wxString& text, const wxString& details) {
  constexpr int kWidth = 340;  // device-independent pixels: about the width of the fields with their labels
  SetHint(*lblMessage, text, details, FromDIP(kWidth));
  lblMessage->Show(!text.empty());
  FitToTexts();
}

void frmLogin::ShowCapsLock() {
  const bool on = platform::IsCapsLockOn();
  if (lblCapsLock->IsShown() == on) return;
  ShowCapsLockRow(on);
  FitToTexts();
}

void frmLogin::ShowCapsLockRow(bool shown) {
  lblCapsLock->Show(shown);
  // The empty cell before it would keep the row's gap.
  wxSizerItem* before = nullptr;
  for (auto* cell : lblCapsLock->GetContainingSizer()->GetChildren()) {
    if (cell->GetWindow() == lblCapsLock && before) before->Show(shown);
    before = cell;
  }
}

void frmLogin::FitToTexts() {
  GetSizer()->SetSizeHints(this);
}

LoginTarget frmLogin::Target() const {
  return {txtServer->GetValue(), fields_.directoryFile};
}

}  // namespace mindloft
