#include "backend/tessaline/login/frmCreateDirectory.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include "backend/corvane/LocalDirectory.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "backend/tessaline/login/LoginHint.h"
#include "backend/tessaline/login/LoginProblem.h"
#include "backend/tessaline/login/SecretText.h"
#include "backend/tessaline/login/WrappedLabel.h"
#include "core/ErrorHandling.h"
#include "platform/Paths.h"

namespace mindloft {
namespace {

constexpr int kPlace = 61220;
constexpr int kNameIsMissing = 61221;
constexpr int kPasswordIsShort = 61222;
constexpr int kRepeatDiffers = 61223;
constexpr int kComplete = 61224;
constexpr int kSystemFailure = 61225;
/// Of the text lines, in device-independent pixels.
constexpr int kTextWidth = 320;

}  // namespace

frmCreateDirectory::frmCreateDirectory(wxWindow* owner, std::filesystem::path file,
                                       const wxString& administratorName)
    : FormDialog(owner, "frmCreateDirectory"), file_(std::move(file)) {
  lblPlace = Find<wxStaticText>("lblPlace");
  txtName = Find<wxTextCtrl>("txtName");
  txtPassword = Find<wxTextCtrl>("txtPassword");
  txtRepeat = Find<wxTextCtrl>("txtRepeat");
  lblHint = Find<wxStaticText>("lblHint");
  cmdOK = Find<wxButton>("cmdOK");
  SetButtons("cmdOK", "cmdCancel");

  txtName->ChangeValue(administratorName);
  LoadInfoOnForm();
  for (auto* field : {txtName, txtPassword, txtRepeat}) {
    field->Bind(wxEVT_TEXT, &frmCreateDirectory::Field_Change, this);
  }
  cmdOK->Bind(wxEVT_BUTTON, &frmCreateDirectory::cmdOK_Click, this);
  txtName->SelectAll();
  txtName->SetFocus();
  CentreOnParent();
}

frmCreateDirectory::~frmCreateDirectory() {
  WipeText(password_);
}

void frmCreateDirectory::LoadInfoOnForm() try {
  FormDialog::LoadInfoOnForm();
  const auto place = GetResource().GetFormatString(kPlace, {ToWx(platform::PathToUtf8(file_))});
  SetWrappedLabel(*lblPlace, place, FromDIP(kTextWidth));
  SetButtonStatus();
} catch (...) {
  mindloft::Raise("frmCreateDirectory", "LoadInfoOnForm");
}

void frmCreateDirectory::Field_Change(wxCommandEvent&) try { SetButtonStatus(); } catch (...) {
  ShowError("frmCreateDirectory", "Field_Change");
}

void frmCreateDirectory::cmdOK_Click(wxCommandEvent&) try {
  if (!Missing().empty()) return;
  const wxBusyCursor busy;
  const SecretText password(*txtPassword);
  const wxString name = txtName->GetValue().Trim(true).Trim(false);
  try {
    Corvane::CreateLocalDirectory(file_, ToUtf8(name), password.Utf8());
  } catch (...) {
    const auto problem = LoginProblem::Of(CurrentError(), kSystemFailure);
    ReportOnly("frmCreateDirectory", "cmdOK_Click");
    ShowHint(problem.text, problem.details);
    return;
  }
  name_ = name;
  password_ = password.Utf8();
  EndModal(wxID_OK);
} catch (...) {
  SetButtonStatus();
  ShowError("frmCreateDirectory", "cmdOK_Click");
}

void frmCreateDirectory::SetButtonStatus() {
  const wxString missing = Missing();
  cmdOK->Enable(missing.empty());
  ShowHint(missing.empty() ? GetResource().GetString(kComplete) : missing);
}

wxString frmCreateDirectory::Missing() const {
  auto& resource = GetResource();
  auto& helper = GetStringHelper();
  if (helper.IsBlank(txtName->GetValue())) return resource.GetString(kNameIsMissing);
  const int least = Corvane::MinimumPasswordLength();
  const int length = helper.Length(txtPassword->GetValue());
  if (length < least) {
    return resource.GetFormatString(kPasswordIsShort,
                                    {wxString::Format("%d", least), wxString::Format("%d", length)});
  }
  return txtPassword->GetValue() == txtRepeat->GetValue() ? wxString() : resource.GetString(kRepeatDiffers);
}

void frmCreateDirectory::ShowHint(const wxString& text, const wxString& details) {
  SetHint(*lblHint, text, details, FromDIP(kTextWidth));
  GetSizer()->SetSizeHints(this);
}

}  // namespace mindloft
