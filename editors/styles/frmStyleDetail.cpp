#include "editors/styles/frmStyleDetail.h"

#include <wx/button.h>
#include <wx/stattext.h>

#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/LabelBefore.h"
#include "controls/numbers/UserTextNumber.h"
#include "controls/rows/DirectoryTexts.h"
#include "controls/rows/StyleRows.h"
#include "controls/styles/ShowStyle.h"
#include "controls/styles/StyleFont.h"
#include "controls/styles/UserPreview.h"
#include "controls/texts/UseTextBox.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"
#include "editors/ResolveConflict.h"
#include "editors/styles/StyleControls.h"
#include "editors/styles/StyleEditorTexts.h"

namespace mindloft {

frmStyleDetail::frmStyleDetail(wxWindow* parent) : PropertySheet(parent, "frmStyleDetail", "") {
  txtName = Find<UseTextBox>("txtName");
  usPreview = Find<UserPreview>("usPreview");
  lblFontMissing = Find<wxStaticText>("lblFontMissing");
  format_ = std::make_unique<StyleControls>(
      *this, [this] { RunEvent("StyleControls_Change", [this] { InfoChanged(); }); });
  txtName->Change = [this] { RunEvent("txtName_Change", [this] { InfoChanged(); }); };
  FollowLanguage();
}

frmStyleDetail::~frmStyleDetail() = default;

void frmStyleDetail::OpenWindow(std::shared_ptr<Corvane::Style> style) try {
  style_ = std::move(style);
  mayChange_ = CheckSysPrivilege(ManageStyles);
  GetInfo();
  LoadInfoOnForm();
  Open();
} catch (...) {
  mindloft::Raise("frmStyleDetail", "OpenWindow");
}

void frmStyleDetail::LoadInfoOnForm() try {
  const LoadingGuard::Lock lock(loading_);
  // The form is made large enough for this text too.
  lblFontMissing->Show();
  PropertySheet::LoadInfoOnForm();
  format_->LoadInfo();
  if (style_) ShowPreview();
} catch (...) {
  mindloft::Raise("frmStyleDetail", "LoadInfoOnForm");
}

void frmStyleDetail::ShowCaption() {
  if (style_) SetCaption(style_->IsNew(), texts::kNewStyle, ToWx(style_->Stored().name));
}

void frmStyleDetail::GetInfo() try {
  const LoadingGuard::Lock lock(loading_);
  txtName->SetText(ToWx(style_->Name()));
  format_->Show(style_->Format());
} catch (...) {
  mindloft::Raise("frmStyleDetail", "GetInfo");
}

void frmStyleDetail::InfoChanged() {
  changed_ = true;
  SetButtonStatus();
  PutInfo();
  ShowPreview();
}

// A font that is being typed is not installed for most of the time: here a line says so, where the preview's
// own message would stop the typing.
void frmStyleDetail::ShowPreview() {
  const bool installed = FaceOfStyleFont(ToWx(style_->Format().fontName)).has_value();
  lblFontMissing->Show(!installed);
  ShowStyle(*usPreview, installed ? style_ : nullptr);
}

void frmStyleDetail::SetButtonStatus() try {
  txtName->SetLocked(!mayChange_);
  format_->Enable(mayChange_);
  cmdApply->Enable(mayChange_ && changed_);
} catch (...) {
  mindloft::Raise("frmStyleDetail", "SetButtonStatus");
}

bool frmStyleDetail::RefuseFaults() {
  if (GetStringHelper().IsBlank(txtName->Text())) {
    txtName->SetFocus();
    GetMessenger().ShowMessage(texts::kStyleNameIsBlank, {}, this);
    return true;
  }
  const auto fault = format_->FirstFault();
  if (!fault) return false;
  fault->box->SetFocus();
  const wxString name = LabelBefore(*fault->box);
  wxString label;
  if (!name.EndsWith(":", &label) && !name.EndsWith(wxString::FromUTF8("\xEF\xBC\x9A"), &label)) label = name;
  GetMessenger().ShowMessage(
      texts::kNumberOutside,
      {label, wxString::Format("%d", fault->least), wxString::Format("%d", fault->greatest)}, this);
  return true;
}

void frmStyleDetail::PutInfo() {
  style_->SetName(ToUtf8(txtName->Text()));
  style_->SetFormat(format_->Format(style_->Format()));
}

void frmStyleDetail::SaveInfo() try {
  if (!changed_) return;
  PutInfo();
  style_->Update();
  changed_ = false;
  SetSaved();
} catch (...) {
  mindloft::Raise("frmStyleDetail", "SaveInfo");
}

void frmStyleDetail::cmdApply_Click() {
  if (RefuseFaults()) return;
  SaveInfo();
  GetInfo();
  ShowCaption();
  SetButtonStatus();
  cmdOK->SetFocus();
}

void frmStyleDetail::CmdOK_Click() {
  // OK asks for the name of a new style that has none yet.
  if (mayChange_ && (changed_ || style_->IsNew())) {
    if (RefuseFaults()) return;
    SaveInfo();
  }
  CloseSheet(wxID_OK);
}

void frmStyleDetail::CmdCancel_Click() {
  style_->CancelEdit(true);
  CloseSheet(wxID_CANCEL);
}

bool frmStyleDetail::MergeConflict(const Error& conflict) {
  PutInfo();
  const std::vector<RecordField<StyleRecord>> fields = {
      Field(texts::kColumnName, &StyleRecord::name),
      Field<StyleRecord, std::string>(texts::kFieldLook, &StyleRecord::definition, StyleFontText)};
  if (!ResolveConflict(this, *style_, fields, conflict)) return false;
  GetInfo();
  ShowPreview();
  SetButtonStatus();
  return true;
}

}  // namespace mindloft
