#include "editors/domains/frmDomainInfo.h"

#include <wx/bookctrl.h>
#include <wx/button.h>
#include <wx/checkbox.h>

#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryList.h"
#include "controls/rows/GroupRows.h"
#include "controls/styles/StyleTexts.h"
#include "controls/styles/frmStyleSelect.h"
#include "controls/texts/UseTextBox.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"
#include "editors/LongChange.h"
#include "editors/domains/DomainCopyPage.h"
#include "editors/domains/DomainDescriptionPage.h"
#include "editors/domains/DomainFields.h"
#include "editors/domains/DomainLists.h"
#include "editors/domains/DomainRights.h"
#include "editors/domains/DomainTexts.h"
#include "editors/members/MemberList.h"
#include "editors/members/frmDGroupProperty.h"

namespace mindloft {

frmDomainInfo::frmDomainInfo(wxWindow* parent) : PropertySheet(parent, "frmDomainInfo", "sstDomain") {
  sstDomain = Find<wxBookCtrlBase>("sstDomain");
  pnlDesc = Find<wxWindow>("pnlDesc");
  pnlCopy = Find<wxWindow>("pnlCopy");
  pnlGroups = Find<wxWindow>("pnlGroups");
  pnlUsers = Find<wxWindow>("pnlUsers");
  txtName = Find<UseTextBox>("txtName");
  txtStyle = Find<UseTextBox>("txtStyle");
  cmdStyle = Find<wxButton>("cmdStyle");
  chkDisabled = Find<wxCheckBox>("chkDisabled");
  ctGroup = Find<ctExplorer>("ctGroup");
  copy_ = std::make_unique<DomainCopyPage>(
      *this, [this] { RunEvent("ctSource_lvSelChange", [this] { InfoChanged(); }); });
  description_ = std::make_unique<DomainDescriptionPage>(
      *this, [this] { RunEvent("TxtDesc_Change", [this] { InfoChanged(); }); },
      [this] { return ToUtf8(txtName->Text()); });
  users_ = std::make_unique<MemberList>(*this, "frmDomainInfo", [this] { SetButtonStatus(); });
  BindHandlers();
  FollowLanguage();
}

frmDomainInfo::~frmDomainInfo() = default;

void frmDomainInfo::BindHandlers() {
  txtName->Change = [this] { RunEvent("txtName_Change", [this] { InfoChanged(); }); };
  cmdStyle->Bind(wxEVT_BUTTON,
                 [this](wxCommandEvent&) { RunEvent("cmdStyle_Click", [this] { cmdStyle_Click(); }); });
  chkDisabled->Bind(wxEVT_CHECKBOX,
                    [this](wxCommandEvent&) { RunEvent("chkDisabled_Click", [this] { InfoChanged(); }); });
  ctGroup->lvItemDblClick = [this](std::int64_t row) {
    if (row >= 0) RunEvent("ctGroup_lvItemDblClick", [this] { ctGroup_lvItemDblClick(); });
  };
}

void frmDomainInfo::OpenWindow(std::shared_ptr<Corvane::KDomain> domain) try {
  domain_ = std::move(domain);
  users_->SetOwner(domain_);
  users_->InitUserList();
  PrepareDirectoryList(*ctGroup);
  ReadRights();
  ArrangePages();
  LoadInfoOnForm();
  GetInfo();
  Open();
} catch (...) {
  mindloft::Raise("frmDomainInfo", "OpenWindow");
}

void frmDomainInfo::ArrangePages() {
  const auto show = [this](wxWindow* page, bool wanted) {
    const int place = sstDomain->FindPage(page);
    if (wanted && place == wxNOT_FOUND) {
      // A hidden page would not come to the front.
      page->Show();
      sstDomain->AddPage(page, page->GetLabel());
    }
    if (!wanted && place != wxNOT_FOUND) {
      sstDomain->RemovePage(static_cast<std::size_t>(place));
      page->Hide();
    }
  };
  show(pnlCopy, domain_->IsNew());
  show(pnlGroups, !domain_->IsNew());
  show(pnlUsers, !domain_->IsNew());
}

void frmDomainInfo::ReadRights() {
  if (domain_->IsNew()) {
    mayChange_ = CheckSysPrivilege(CreateDomains);
    return;
  }
  const auto context = GetApplication()->Server()->KDomains()->Item(domain_->Id());
  mayChange_ = MayChangeDomain(context, ChangeDomain);
  mayChangeUsers_ = MayChangeDomain(context, ManageDomainUsers);
}

void frmDomainInfo::LoadInfoOnForm() try {
  PropertySheet::LoadInfoOnForm();
  if (!domain_) return;
  const LoadingGuard::Lock lock(loading_);
  ShowStyle();
  users_->LoadInfo();
  description_->LoadInfo();
  for (int page = 0; page < static_cast<int>(sstDomain->GetPageCount()); ++page) {
    const auto* window = sstDomain->GetPage(static_cast<std::size_t>(page));
    if (IsFilled(page) && window != pnlUsers && window != pnlDesc) FillPage(page);
  }
} catch (...) {
  mindloft::Raise("frmDomainInfo", "LoadInfoOnForm");
}

void frmDomainInfo::ShowCaption() {
  if (domain_) SetCaption(domain_->IsNew(), texts::kNewDomain, ToWx(domain_->Stored().name));
}

void frmDomainInfo::ShowStyle() {
  const auto style =
      style_ == 0 ? nullptr : GetApplication()->Server()->Styles()->Item(Corvane::IdText(style_));
  if (!style) style_ = 0;
  txtStyle->SetText(style ? ToWx(style->Name()) : GetResource().GetString(texts::kEmptyStyle));
}

void frmDomainInfo::cmdStyle_Click() {
  const auto present =
      style_ == 0 ? nullptr : GetApplication()->Server()->Styles()->Item(Corvane::IdText(style_));
  frmStyleSelect picker(this);
  const auto chosen = picker.Display(present, true);
  const ObjectId former = style_;
  if (picker.Accepted()) style_ = chosen ? chosen->Stored().id : 0;
  // The styles themselves may have been changed meanwhile.
  ShowStyle();
  if (style_ == former) return;
  description_->Follow(*domain_, style_, false);
  InfoChanged();
}

void frmDomainInfo::GetInfo() try {
  const LoadingGuard::Lock lock(loading_);
  txtName->SetText(ToWx(domain_->Name()));
  style_ = domain_->Edited().style;
  ShowStyle();
  chkDisabled->SetValue(domain_->Disabled());
} catch (...) {
  mindloft::Raise("frmDomainInfo", "GetInfo");
}

void frmDomainInfo::FillPage(int page) {
  const auto* shown = sstDomain->GetPage(static_cast<std::size_t>(page));
  if (shown == pnlDesc) description_->Display(*domain_, style_);
  if (shown == pnlCopy) copy_->Display();
  if (shown == pnlGroups) DisplayGroups();
  if (shown == pnlUsers) users_->DisplayUsers();
}

void frmDomainInfo::DisplayGroups() {
  ShowGroupList(*ctGroup, std::make_shared<GroupRows>(domain_->DGroups()->View()));
}

void frmDomainInfo::ctGroup_lvItemDblClick() {
  const auto rows = ctGroup->SelectedListRows();
  if (rows.size() != 1) return;
  if (const auto group = domain_->DGroups()->Item(ToUtf8(rows.front().key))) {
    frmDGroupProperty(this).OpenWindow(group);
    GetRefresh()->Notify(ObjectKind::UserGroup, ObjectAction::Changed, group);
  }
  ctGroup->RefreshList();
}

void frmDomainInfo::SetButtonStatus() try {
  txtName->SetLocked(!mayChange_);
  description_->SetButtonStatus(mayChange_);
  cmdStyle->Enable(mayChange_);
  chkDisabled->Enable(mayChange_);
  copy_->SetButtonStatus(mayChange_);
  users_->Enable(mayChangeUsers_);
  cmdApply->Enable(HasChanges());
} catch (...) {
  mindloft::Raise("frmDomainInfo", "SetButtonStatus");
}

bool frmDomainInfo::HasChanges() const {
  return infoChanged_ || !users_->Pending().Empty();
}

void frmDomainInfo::InfoChanged() {
  infoChanged_ = true;
  SetButtonStatus();
}

bool frmDomainInfo::RefuseBlankName() {
  if (!GetStringHelper().IsBlank(txtName->Text())) return false;
  SelectPage(0);
  txtName->SetFocus();
  GetMessenger().ShowMessage(texts::kNameIsBlank, {}, this);
  return true;
}

void frmDomainInfo::PutInfo() {
  domain_->SetName(ToUtf8(txtName->Text()));
  description_->Put(*domain_);
  domain_->SetStyleId(Corvane::IdText(style_));
  domain_->SetDisabled(chkDisabled->GetValue());
  if (domain_->IsNew()) domain_->CopyFrom(copy_->Chosen());
}

bool frmDomainInfo::SaveInfo() try {
  if (infoChanged_) {
    PutInfo();
    const auto caption = GetResource().GetFormatString(texts::kCreatingDomain, {txtName->Text()});
    if (!RunLongChange(this, caption, kPatience,
                       [this](const Progress& progress) { domain_->Update(progress); }))
      return false;
    infoChanged_ = false;
    description_->SetStored();
    SetSaved();
  }
  if (users_->Changed()) {
    if (!users_->Save()) return false;
    users_->ClearChanged();
    SetSaved();
  }
  return true;
} catch (...) {
  mindloft::Raise("frmDomainInfo", "SaveInfo");
}

void frmDomainInfo::cmdApply_Click() {
  if (RefuseBlankName()) return;
  if (!SaveInfo()) return SetButtonStatus();
  ReadRights();
  ArrangePages();
  ShowCaption();
  GetInfo();
  FillAgain(sstDomain->FindPage(pnlGroups));
  FillAgain(sstDomain->FindPage(pnlUsers));
  SetButtonStatus();
  cmdOK->SetFocus();
}

void frmDomainInfo::CmdOK_Click() {
  // A new domain that nobody has given a name yet is no slip: OK asks for one.
  if ((HasChanges() || domain_->IsNew()) && (RefuseBlankName() || !SaveInfo())) return SetButtonStatus();
  CloseSheet(wxID_OK);
}

void frmDomainInfo::CmdCancel_Click() {
  domain_->CancelEdit(true);
  CloseSheet(wxID_CANCEL);
}

bool frmDomainInfo::MergeConflict(const Error& conflict) {
  if (infoChanged_) PutInfo();
  const DomainRecord mine = domain_->Edited();
  if (!MergeDomain(this, *domain_, conflict)) return false;
  const DomainRecord& merged = domain_->Edited();
  GetInfo();
  description_->Follow(*domain_, style_,
                       merged.description != mine.description || merged.document != mine.document);
  SetButtonStatus();
  return true;
}

}  // namespace mindloft
