#include "editors/members/frmDGroupProperty.h"

#include <wx/arrstr.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/stattext.h>

#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "backend/tessaline/login/WrappedLabel.h"
#include "controls/texts/UseTextBox.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"
#include "editors/members/GroupFields.h"

namespace mindloft {
namespace {

constexpr int kNameIsBlankOnApply = 23058;
constexpr int kNameIsBlankOnOK = 51102;
constexpr int kNewGroup = 59355;
/// Of the stored description, in pixels at 96 dpi.
constexpr int kDescriptionWidth = 320;

/// Lines of it; the tool tip shows the rest of a longer one.
constexpr int kDescriptionLines = 6;

enum Page : int { General, Members };

/// The text in one line: each line break of a character becomes a blank.
wxString OneLine(wxString text) {
  text.Replace("\r", " ");
  text.Replace("\n", " ");
  return text;
}

wxString FirstLines(const wxString& text) {
  const wxArrayString lines = wxSplit(text, '\n', '\0');
  if (lines.size() <= kDescriptionLines) return text;
  return wxJoin(wxArrayString(kDescriptionLines, &lines[0]), '\n', '\0') + wxUniChar(0x2026);
}

}  // namespace

frmDGroupProperty::frmDGroupProperty(wxWindow* parent)
    : PropertySheet(parent, "frmDGroupProperty", "sstGroup") {
  txtName = Find<UseTextBox>("txtName");
  TxtDesc = Find<UseTextBox>("TxtDesc");
  lblStored = Find<wxStaticText>("lblStored");
  txtDescription = Find<wxStaticText>("txtDescription");
  privileges_ = {{ReadDocuments, Find<wxCheckBox>("chkRead")},
                 {WriteDocuments, Find<wxCheckBox>("chkWrite")},
                 {ManageDomainUsers, Find<wxCheckBox>("chkUsers")},
                 {ManageDomainGroups, Find<wxCheckBox>("chkGroups")},
                 {ChangeDomain, Find<wxCheckBox>("chkDomain")}};
  members_ = std::make_unique<MemberList>(*this, "frmDGroupProperty", [this] { SetButtonStatus(); });
  BindHandlers();
  FollowLanguage();
}

void frmDGroupProperty::BindHandlers() {
  txtName->Change = [this] { RunEvent("txtName_Change", [this] { InfoChanged(); }); };
  TxtDesc->Change = [this] { RunEvent("TxtDesc_Change", [this] { InfoChanged(); }); };
  for (const auto& privilege : privileges_)
    privilege.second->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) {
      RunEvent("chkPrivilege_Click", [this] { InfoChanged(); });
    });
}

void frmDGroupProperty::OpenWindow(std::shared_ptr<Corvane::DGroup> group) try {
  group_ = std::move(group);
  members_->SetOwner(group_);
  const auto domain = GetApplication()->Server()->KDomains()->Item(group_->DomainId());
  holdsRight_ = CheckDomainPrivilege(domain, ManageDomainGroups) || CheckSysPrivilege(ChangeDomains);
  GetInfo();
  LoadInfoOnForm();
  members_->InitUserList();
  Open();
} catch (...) {
  mindloft::Raise("frmDGroupProperty", "OpenWindow");
}

void frmDGroupProperty::LoadInfoOnForm() try {
  PropertySheet::LoadInfoOnForm();
  members_->LoadInfo();
} catch (...) {
  mindloft::Raise("frmDGroupProperty", "LoadInfoOnForm");
}

void frmDGroupProperty::ShowCaption() {
  if (group_) SetCaption(group_->IsNew(), kNewGroup, ToWx(group_->Stored().name));
}

void frmDGroupProperty::GetInfo() try {
  const LoadingGuard::Lock lock(loading_);
  txtName->SetText(ToWx(group_->Name()));
  ShowDescription();
  ShowPrivileges();
  LockInfo();
} catch (...) {
  mindloft::Raise("frmDGroupProperty", "GetInfo");
}

void frmDGroupProperty::ShowDescription() {
  const LoadingGuard::Lock lock(loading_);
  TxtDesc->SetText(OneLine(ToWx(group_->Description())));
  const wxString stored = group_->IsNew() ? wxString() : ToWx(group_->Stored().description);
  SetWrappedLabel(*txtDescription, stored, FromDIP(kDescriptionWidth));
  const wxString wrapped = txtDescription->GetLabelText();
  const wxString shown = FirstLines(wrapped);
  txtDescription->UnsetToolTip();
  if (shown != wrapped) {
    txtDescription->SetLabelText(shown);
    txtDescription->SetToolTip(stored);
  }
  lblStored->Show(!stored.empty());
  txtDescription->Show(!stored.empty());
  if (IsShown()) FitToContents();
}

void frmDGroupProperty::ShowPrivileges() {
  for (const auto& [privilege, box] : privileges_)
    box->SetValue((group_->DomainPrivileges() & privilege) != 0);
}

std::uint32_t frmDGroupProperty::CheckedPrivileges() const {
  std::uint32_t mask = group_->DomainPrivileges() & ~std::uint32_t{AllDomainPrivileges};
  for (const auto& [privilege, box] : privileges_)
    if (box->GetValue()) mask |= privilege;
  return mask;
}

bool frmDGroupProperty::MayEdit() const {
  return group_->Editable() && holdsRight_;
}

void frmDGroupProperty::LockInfo() {
  txtName->SetLocked(group_->BuiltIn() || !MayEdit());
  TxtDesc->SetLocked(!MayEdit());
  const bool ownPrivileges = MayEdit() && group_->Kind() != AdministratorsGroup;
  for (const auto& privilege : privileges_) privilege.second->Enable(ownPrivileges);
}

void frmDGroupProperty::FillPage(int page) {
  if (page == Members) members_->DisplayUsers();
}

void frmDGroupProperty::SetButtonStatus() try {
  members_->Enable(MayEdit());
  cmdApply->Enable(infoChanged_ || members_->Changed());
} catch (...) {
  mindloft::Raise("frmDGroupProperty", "SetButtonStatus");
}

void frmDGroupProperty::InfoChanged() {
  infoChanged_ = true;
  SetButtonStatus();
}

bool frmDGroupProperty::NameIsBlank() const {
  return GetStringHelper().IsBlank(txtName->Text());
}

void frmDGroupProperty::PutInfo() {
  group_->SetName(ToUtf8(txtName->Text()));
  // What only the box shows in one line keeps its lines.
  if (TxtDesc->Text() != OneLine(ToWx(group_->Description())))
    group_->SetDescription(ToUtf8(TxtDesc->Text()));
  group_->SetDomainPrivileges(CheckedPrivileges());
}

bool frmDGroupProperty::SaveInfo() try {
  if (infoChanged_ && group_->Editable()) {
    PutInfo();
    group_->Update();
    SetSaved();
  }
  if (members_->Changed()) {
    if (!members_->Save()) return false;
    SetSaved();
  }
  return true;
} catch (...) {
  mindloft::Raise("frmDGroupProperty", "SaveInfo");
}

void frmDGroupProperty::ClearFlags() {
  infoChanged_ = false;
  members_->ClearChanged();
}

void frmDGroupProperty::cmdApply_Click() {
  if (NameIsBlank()) {
    GetMessenger().ShowMessage(kNameIsBlankOnApply, {}, this);
    return;
  }
  const bool saved = SaveInfo();
  ShowCaption();
  GetInfo();
  if (saved) ClearFlags();
  SetButtonStatus();
  if (saved) cmdOK->SetFocus();
}

void frmDGroupProperty::CmdOK_Click() {
  if (NameIsBlank()) {
    GetMessenger().ShowMessage(kNameIsBlankOnOK, {}, this);
    return;
  }
  if (!SaveInfo()) return SetButtonStatus();
  ClearFlags();
  CloseSheet(wxID_OK);
}

void frmDGroupProperty::CmdCancel_Click() {
  group_->CancelEdit(true);
  CloseSheet(wxID_CANCEL);
}

bool frmDGroupProperty::MergeConflict(const Error& conflict) {
  if (infoChanged_) PutInfo();
  if (!MergeGroup(this, *group_, conflict)) return false;
  GetInfo();
  SetButtonStatus();
  return true;
}

}  // namespace mindloft
