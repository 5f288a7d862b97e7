#include "config/frmURL.h"

#include <wx/button.h>

#include <algorithm>

#include "backend/tessaline/Services.h"
#include "config/UrlRows.h"
#include "controls/RegisterControls.h"
#include "controls/explorer/ExplorerLists.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/texts/UseTextBox.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"
#include "platform/ui/MouseWheel.h"

namespace mindloft {
namespace {

constexpr int kDuplicate = 53657;
constexpr int kSearchHint = 61104;
constexpr int kUrlColumn = 61810;
/// What the list needs beside its column, in explorer width units.
constexpr int kScrollBarWidth = 30;

}  // namespace

frmURL::frmURL(wxWindow* parent, Purpose purpose)
    : FormDialog(WithControls(parent), "frmURL"), purpose_(purpose) {
  txtUrl = Find<UseTextBox>("txtUrl");
  ctURL = Find<ctExplorer>("ctURL");
  cmdAdd = Find<wxButton>("cmdAdd");
  SetButtons("cmdAdd", "cmdclose");
  BindHandlers();
  Form_Load();
}

frmURL::~frmURL() {
  platform::Unhook2(this);
}

void frmURL::BindHandlers() {
  // Enter in the text box presses it too.
  cmdAdd->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdAdd_Click(); });
  Find<wxButton>("CmdNew")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CmdNew_Click(); });
  Find<wxButton>("CmdDelete")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CmdDelete_Click(); });
  Find<wxButton>("cmdclose")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdclose_Click(); });
  ctURL->lvSelChange = [this] { ctURL_SelChange(); };
  ctURL->keyDown = [this](int key, int modifiers) { return ctURL_KeyDown(key, modifiers); };
  // The row that is selected already can be taken into the box as well, without first selecting another one.
  ctURL->Bind(wxEVT_CHILD_FOCUS, [this](wxChildFocusEvent& event) {
    event.Skip();
    if (dynamic_cast<wxTextEntry*>(event.GetWindow()) || !txtUrl->Text().empty()) return;
    ctURL_SelChange();
  });
}

void frmURL::Form_Load() try {
  LoadInfoOnForm();
  platform::Hook2(this);
  language_ = GetRefresh()->OnNotifyLanguage([this] { Refresh_NotifyLanguage(); });
  SpecifyBreakChar(*ctURL);
  rows_ = std::make_shared<UrlRows>(ReadUrlList());
  ShowRows();
  SetEditMode(false);
  EditKey.clear();
  SelectRow(0);
  txtUrl->SetFocus();
  CentreOnParent();
} catch (...) {
  mindloft::Raise("frmURL", "Form_Load");
}

void frmURL::LoadInfoOnForm() try {
  FormDialog::LoadInfoOnForm();
  SetEditMode(EditMode);
  if (rows_) ShowRows();
} catch (...) {
  mindloft::Raise("frmURL", "LoadInfoOnForm");
}

void frmURL::ShowRows() {
  const LoadingGuard::Lock lock(loading_);
  const auto state = ctURL->ListState();
  const bool listed = !ctURL->Columns().empty();
  ctURL->ClearList();
  AddColumn(*ctURL, GetResource().GetString(kUrlColumn), ctURL->ToDIP(ctURL->GetSize().x) - kScrollBarWidth);
  ctURL->SetSearchHint(GetResource().GetString(kSearchHint));
  ctURL->SetRows(rows_);
  if (listed) ctURL->RestoreList(state);
}

void frmURL::SetEditMode(bool editMode) {
  EditMode = editMode;
  const auto caption = GetResource().CaptionOf(GetName(), editMode ? "cmdAdd.edit" : "cmdAdd");
  if (caption && cmdAdd->GetLabel() != caption->text) cmdAdd->SetLabel(caption->text);
}

void frmURL::SelectRow(std::int64_t row) {
  const LoadingGuard::Lock lock(loading_);
  const std::int64_t last = ctURL->ListCount() - 1;
  if (last >= 0 && row >= 0) ctURL->SelectListRow(std::min(row, last));
}

wxString frmURL::SelectedKey() const {
  if (ctURL->SelectedListCount() != 1) return {};
  return ctURL->SelectedListRows().front().key;
}

void frmURL::cmdAdd_Click() try {
  const wxString url = TrimmedUrl(txtUrl->Text());
  if (GetStringHelper().IsBlank(url)) return SetEditMode(false);
  // A warning only. An entry that is stored again as it was counts as its own duplicate.
  if (rows_->CountOf(url) > 0) GetMessenger().ShowMessage(kDuplicate, {}, this);
  const bool isKnown = EditMode && !EditKey.empty();
  const KnownUrl known{isKnown ? EditKey : CreateGUID(), url};
  WriteUrl(known);
  rows_->Put(known);
  {
    const LoadingGuard::Lock lock(loading_);
    ctURL->RefreshList();
  }
  chosenKey_ = known.key;
  SelectRow(rows_->PositionOf(known.key));
  txtUrl->SetText({});
  txtUrl->SetFocus();
  SetEditMode(false);
} catch (...) {
  ShowError("frmURL", "cmdAdd_Click");
}

void frmURL::CmdNew_Click() try {
  SetEditMode(false);
  EditKey.clear();
  txtUrl->SetText({});
  txtUrl->SetFocus();
} catch (...) {
  ShowError("frmURL", "CmdNew_Click");
}

void frmURL::CmdDelete_Click() try {
  const auto selected = ctURL->SelectedListRows();
  if (selected.empty()) return;
  const std::int64_t place = rows_->PositionOf(selected.front().key);
  for (const auto& row : selected) {
    DeleteUrl(row.key);
    rows_->Remove(row.key);
    if (row.key == chosenKey_) chosenKey_.clear();
    if (row.key != EditKey) continue;
    // What is left in the box is no entry of the list any more.
    EditKey.clear();
    SetEditMode(false);
    txtUrl->SetText({});
  }
  {
    const LoadingGuard::Lock lock(loading_);
    ctURL->RefreshList();
  }
  SelectRow(place);
} catch (...) {
  ShowError("frmURL", "CmdDelete_Click");
}

void frmURL::cmdclose_Click() try {
  const KnownUrl* chosen = chosenKey_.empty() ? nullptr : rows_->Find(chosenKey_);
  if (purpose_ == Purpose::ChooseUrl && chosen) {
    GetResource().SetSetting(Tessaline::Setting::WebServerURL, chosen->url);
  }
  EndModal(wxID_CANCEL);
} catch (...) {
  ShowError("frmURL", "cmdclose_Click");
  EndModal(wxID_CANCEL);
}

void frmURL::ctURL_SelChange() try {
  if (loading_.Active() || !rows_) return;
  const wxString key = SelectedKey();
  const KnownUrl* known = key.empty() ? nullptr : rows_->Find(key);
  if (!known) return;
  EditKey = chosenKey_ = key;
  txtUrl->SetText(known->url);
  SetEditMode(true);
} catch (...) {
  ShowError("frmURL", "ctURL_SelChange");
}

bool frmURL::ctURL_KeyDown(int key, int modifiers) {
  const bool isDelete = (key == WXK_DELETE || key == WXK_NUMPAD_DELETE) && modifiers == wxMOD_NONE;
  if (isDelete) CmdDelete_Click();
  return isDelete;
}

void frmURL::Refresh_NotifyLanguage() try { LoadInfoOnForm(); } catch (...) {
  ShowError("frmURL", "Refresh_NotifyLanguage");
}

}  // namespace mindloft
