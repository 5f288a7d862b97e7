#include "controls/styles/frmStyleSelect.h"

#include <wx/button.h>
#include <wx/choice.h>

#include "backend/corvane/Corvane.h"
#include "backend/errors/Error.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/RegisterControls.h"
#include "controls/styles/ShowStyle.h"
#include "controls/styles/StyleEditor.h"
#include "controls/styles/StyleTexts.h"
#include "controls/styles/UserPreview.h"
#include "core/ErrorHandling.h"

namespace mindloft {

frmStyleSelect::frmStyleSelect(wxWindow* parent) : FormDialog(WithControls(parent), "frmStyleSelect") {
  CmbStyle = Find<wxChoice>("CmbStyle");
  usPreview = Find<UserPreview>("UserPreview");
  cmdStyles = Find<wxButton>("cmdStyles");
  SetButtons("cmdOK", "CmdCancel");
  CmbStyle->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { CmbStyle_Click(); });
  cmdStyles->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdStyles_Click(); });
  Find<wxButton>("cmdOK")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdOK_Click(); });
  Find<wxButton>("CmdCancel")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CmdCancel_Click(); });
  language_ = GetRefresh()->OnNotifyLanguage([this] { Refresh_NotifyLanguage(); });
}

std::shared_ptr<Corvane::Style> frmStyleSelect::Display(const std::shared_ptr<Corvane::Style>& style,
                                                        bool offerEmpty) try {
  style_ = style;
  offerEmpty_ = offerEmpty;
  accepted_ = false;
  cmdStyles->Enable(MayEditStyles());
  BuildList();
  LoadInfoOnForm();
  SelectItem();
  CentreOnParent();
  CmbStyle->SetFocus();
  ShowModal();
  if (!accepted_) GetUtility().Log(ToUtf8(GetResource().GetFormatString(texts::kStyleNotAccepted, {})));
  return style_;
} catch (...) {
  mindloft::Raise("frmStyleSelect", "Display");
}

void frmStyleSelect::LoadInfoOnForm() try {
  if (offerEmpty_ && !CmbStyle->IsEmpty())
    CmbStyle->SetString(0, GetResource().GetString(texts::kEmptyStyle));
  FormDialog::LoadInfoOnForm();
} catch (...) {
  mindloft::Raise("frmStyleSelect", "LoadInfoOnForm");
}

void frmStyleSelect::Refresh_NotifyLanguage() try {
  LoadInfoOnForm();
  // The names may have another order, and the sample text may be the language's.
  RebuildList();
} catch (...) {
  ShowError("frmStyleSelect", "Refresh_NotifyLanguage");
}

void frmStyleSelect::BuildList() try {
  CmbStyle->Clear();
  styles_.clear();
  wxArrayString names;
  if (offerEmpty_) {
    names.Add(GetResource().GetString(texts::kEmptyStyle));
    styles_.push_back(0);
  }
  const auto styles = GetApplication()->Server()->Styles();
  for (const auto& style : styles->View().Page(0, styles->Count())) {
    names.Add(ToWx(style.name));
    styles_.push_back(style.id);
  }
  CmbStyle->Set(names);
} catch (...) {
  mindloft::Raise("frmStyleSelect", "BuildList");
}

void frmStyleSelect::SelectItem() try {
  if (!style_) {
    if (CmbStyle->IsEmpty()) return ShowStyle(*usPreview, nullptr);
    CmbStyle->SetSelection(0);
    return ShowChosen();
  }
  const wxString name = ToWx(style_->Name());
  for (unsigned item = 0; item < CmbStyle->GetCount(); ++item) {
    if (CmbStyle->GetString(item) != name) continue;
    CmbStyle->SetSelection(static_cast<int>(item));
    return ShowChosen();
  }
  // Somebody has removed it meanwhile.
  ShowStyle(*usPreview, style_);
} catch (...) {
  mindloft::Raise("frmStyleSelect", "SelectItem");
}

void frmStyleSelect::ShowChosen() {
  const int chosen = CmbStyle->GetSelection();
  if (chosen < 0) return;
  const ObjectId id = styles_[static_cast<std::size_t>(chosen)];
  std::shared_ptr<Corvane::Style> style;
  if (id != 0) {
    style = GetApplication()->Server()->Styles()->Item(Corvane::IdText(id));
    if (!style) throw Error(ErrorNumber::ObjectNotFound, "style " + Corvane::IdText(id));
  }
  style_ = std::move(style);
  ShowStyle(*usPreview, style_);
}

void frmStyleSelect::CmbStyle_Click() try { ShowChosen(); } catch (...) {
  ShowError("frmStyleSelect", "CmbStyle_Click");
  // Somebody may have removed it.
  Guarded("frmStyleSelect", "BuildList", [this] { RebuildList(); });
}

void frmStyleSelect::RebuildList() {
  if (style_) {
    const auto stored = GetApplication()->Server()->Styles()->Item(style_->Id());
    if (stored) style_ = stored;
  }
  BuildList();
  SelectItem();
}

void frmStyleSelect::cmdStyles_Click() try {
  EditStyles(this);
  RebuildList();
} catch (...) {
  ShowError("frmStyleSelect", "cmdStyles_Click");
}

void frmStyleSelect::cmdOK_Click() try {
  accepted_ = true;
  EndModal(wxID_OK);
} catch (...) {
  ShowError("frmStyleSelect", "cmdOK_Click");
}

void frmStyleSelect::CmdCancel_Click() try { EndModal(wxID_CANCEL); } catch (...) {
  ShowError("frmStyleSelect", "CmdCancel_Click");
}

}  // namespace mindloft
