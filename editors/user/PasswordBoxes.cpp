#include "editors/user/PasswordBoxes.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include <utility>

#include "backend/corvane/LocalDirectory.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "backend/tessaline/login/SecretText.h"
#include "controls/texts/UseTextBox.h"
#include "core/ErrorHandling.h"
#include "core/forms/Form.h"
#include "editors/user/CopySecret.h"
#include "editors/user/GeneratePassword.h"
#include "editors/user/PasswordStrength.h"
#include "platform/ui/Keyboard.h"

namespace mindloft {
namespace {

constexpr int kTooShort = 61222;  ///< %1 the least number of characters, %2 the present one
constexpr int kDiffer = 61223;
constexpr int kWeak = 61610;
constexpr int kFair = 61611;
constexpr int kStrong = 61612;
constexpr int kPasswordIsSet = 61613;

int TextOf(PasswordStrength strength) {
  switch (strength) {
    case PasswordStrength::Weak:
      return kWeak;
    case PasswordStrength::Fair:
      return kFair;
    case PasswordStrength::Strong:
      break;
  }
  return kStrong;
}

}  // namespace

PasswordBoxes::PasswordBoxes(wxWindow& form, const char* className, std::function<wxString()> userName)
    : form_(form), className_(className), userName_(std::move(userName)) {
  txtPwd = FindControl<UseTextBox>(form, "txtPwd");
  txtCfmPwd = FindControl<UseTextBox>(form, "txtCfmPwd");
  lblStrength = FindControl<wxStaticText>(form, "lblStrength");
  lblCapsLock = FindControl<wxStaticText>(form, "lblCapsLock");
  chkShowPwd = FindControl<wxCheckBox>(form, "chkShowPwd");
  cmdGenerate = FindControl<wxButton>(form, "cmdGenerate");
  cmdCopyPwd = FindControl<wxButton>(form, "cmdCopyPwd");
  mask_ = txtPwd->PassWordChar();
  const auto run = [this](const char* procedure, void (PasswordBoxes::*handler)()) {
    return [this, procedure, handler](wxCommandEvent&) {
      Guarded(className_, procedure, [&] { (this->*handler)(); });
    };
  };
  chkShowPwd->Bind(wxEVT_CHECKBOX, run("chkShowPwd_Click", &PasswordBoxes::chkShowPwd_Click));
  cmdGenerate->Bind(wxEVT_BUTTON, run("cmdGenerate_Click", &PasswordBoxes::cmdGenerate_Click));
  cmdCopyPwd->Bind(wxEVT_BUTTON, run("cmdCopyPwd_Click", &PasswordBoxes::cmdCopyPwd_Click));
  for (UseTextBox* box : {txtPwd, txtCfmPwd}) {
    box->Change = [this] { Box_Change(); };
    box->KeyUp = [this](int&, int) { ShowCapsLock(); };
    box->Bind(wxEVT_CHILD_FOCUS, [this](wxChildFocusEvent& event) {
      event.Skip();
      Guarded(className_, "txtPwd_GotFocus", [this] { ShowCapsLock(); });
    });
  }
  lblCapsLock->Hide();
}

void PasswordBoxes::Box_Change() {
  if (putting_) return;
  done_ = false;
  if (changed) changed();
  ShowHints();
}

wxString PasswordBoxes::Text() const {
  return txtPwd->Text();
}

bool PasswordBoxes::AreEqual() const {
  return txtPwd->Text() == txtCfmPwd->Text();
}

bool PasswordBoxes::AreEmpty() const {
  return txtPwd->Text().empty() && txtCfmPwd->Text().empty();
}

void PasswordBoxes::Focus() const {
  txtPwd->SetFocus();
}

void PasswordBoxes::FocusConfirmation() const {
  txtCfmPwd->SetFocus();
}

void PasswordBoxes::Put(const wxString& text) {
  putting_ = true;
  txtPwd->SetText(text);
  txtCfmPwd->SetText(text);
  putting_ = false;
}

void PasswordBoxes::Clear(bool done) {
  Put({});
  done_ = done;
  chkShowPwd->SetValue(false);
  chkShowPwd_Click();
  ShowHints();
}

void PasswordBoxes::SetLocked(bool locked) {
  locked_ = locked;
  txtPwd->SetLocked(locked);
  txtCfmPwd->SetLocked(locked);
  ShowHints();
}

wxString PasswordBoxes::Hint() const {
  auto& resource = GetResource();
  if (AreEmpty()) return done_ ? resource.GetString(kPasswordIsSet) : wxString();
  const int least = Corvane::MinimumPasswordLength();
  const int length = GetStringHelper().Length(txtPwd->Text());
  if (length < least) {
    return resource.GetFormatString(kTooShort,
                                    {wxString::Format("%d", least), wxString::Format("%d", length)});
  }
  const wxString strength = resource.GetString(TextOf(StrengthOf(txtPwd->Text(), userName_())));
  const wxString confirmation = txtCfmPwd->Text();
  return confirmation.empty() || AreEqual() ? strength : resource.GetString(kDiffer);
}

void PasswordBoxes::ShowHints() {
  const wxString hint = Hint();
  if (lblStrength->GetLabelText() != hint) lblStrength->SetLabelText(hint);
  chkShowPwd->Enable(!locked_);
  cmdGenerate->Enable(!locked_);
  cmdCopyPwd->Enable(!locked_ && !txtPwd->Text().empty() && AreEqual());
  ShowCapsLock();
}

void PasswordBoxes::ShowCapsLock() {
  lblCapsLock->Show(!locked_ && platform::IsCapsLockOn());
}

void PasswordBoxes::chkShowPwd_Click() {
  const wxString mask = chkShowPwd->GetValue() ? wxString() : mask_;
  for (UseTextBox* box : {txtPwd, txtCfmPwd}) box->SetPassWordChar(mask);
}

void PasswordBoxes::cmdGenerate_Click() {
  std::string password = GeneratePassword();
  Put(ToWx(password));
  WipeText(password);
  Box_Change();
}

void PasswordBoxes::cmdCopyPwd_Click() {
  if (!CopySecret(txtPwd->Text())) wxBell();
}

}  // namespace mindloft
