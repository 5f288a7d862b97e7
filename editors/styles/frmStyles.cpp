#include "editors/styles/frmStyles.h"

#include <wx/button.h>

#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/RegisterControls.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryList.h"
#include "controls/rows/DirectoryTexts.h"
#include "controls/rows/StyleRows.h"
#include "controls/styles/ShowStyle.h"
#include "controls/styles/UserPreview.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"
#include "editors/styles/StyleEditorTexts.h"
#include "editors/styles/frmStyleDetail.h"

namespace mindloft {

frmStyles::frmStyles(wxWindow* parent) : FormDialog(WithControls(parent), "frmStyles") {
  ctStyle = Find<ctExplorer>("ctStyle");
  usPreview = Find<UserPreview>("usPreview");
  cmdAdd = Find<wxButton>("cmdAdd");
  cmdProperties = Find<wxButton>("cmdProperties");
  cmdRemove = Find<wxButton>("cmdRemove");
  SetEscapeId(Find<wxButton>("cmdClose")->GetId());
  BindHandlers();
  language_ = GetRefresh()->OnNotifyLanguage([this] { Refresh_NotifyLanguage(); });
}

void frmStyles::BindHandlers() {
  const auto run = [this](const char* procedure, void (frmStyles::*command)()) {
    return [this, procedure, command](wxCommandEvent&) { RunEvent(procedure, command); };
  };
  cmdAdd->Bind(wxEVT_BUTTON, run("cmdAdd_Click", &frmStyles::cmdAdd_Click));
  cmdProperties->Bind(wxEVT_BUTTON, run("cmdProperties_Click", &frmStyles::cmdProperties_Click));
  cmdRemove->Bind(wxEVT_BUTTON, run("cmdRemove_Click", &frmStyles::cmdRemove_Click));
  ctStyle->lvSelChange = [this] { RunEvent("ctStyle_lvSelChange", &frmStyles::ctStyle_lvSelChange); };
  ctStyle->lvCountChange = [this] { RunEvent("ctStyle_lvCountChange", &frmStyles::ctStyle_lvSelChange); };
  ctStyle->lvItemDblClick = [this](std::int64_t row) {
    if (row >= 0) RunEvent("ctStyle_lvItemDblClick", &frmStyles::cmdProperties_Click);
  };
}

void frmStyles::RunEvent(const char* procedureName, void (frmStyles::*command)()) noexcept try {
  (this->*command)();
} catch (...) {
  ShowError("frmStyles", procedureName);
  Guarded("frmStyles", "DisplayStyles", [this] { ctStyle->RefreshList(); });
}

void frmStyles::OpenWindow() try {
  mayChange_ = CheckSysPrivilege(ManageStyles);
  PrepareDirectoryList(*ctStyle);
  LoadInfoOnForm();
  if (ctStyle->ListCount() > 0) ctStyle->SelectListRow(0);
  SetButtonStatus();
  CentreOnParent();
  ctStyle->FocusList();
  ShowModal();
} catch (...) {
  mindloft::Raise("frmStyles", "OpenWindow");
}

void frmStyles::LoadInfoOnForm() try {
  FormDialog::LoadInfoOnForm();
  DisplayStyles();
} catch (...) {
  mindloft::Raise("frmStyles", "LoadInfoOnForm");
}

void frmStyles::Refresh_NotifyLanguage() try {
  LoadInfoOnForm();
  ctStyle_lvSelChange();
} catch (...) {
  ShowError("frmStyles", "Refresh_NotifyLanguage");
}

void frmStyles::DisplayStyles() {
  ShowDirectoryList(*ctStyle, {{texts::kColumnName, 150}, {texts::kColumnFont, 190}},
                    std::make_shared<StyleRows>(GetApplication()->Server()->Styles()->View()));
}

void frmStyles::SetButtonStatus() {
  const bool one = ctStyle->SelectedListCount() == 1;
  cmdAdd->Enable(mayChange_);
  cmdProperties->Enable(one);
  cmdRemove->Enable(mayChange_ && one);
}

std::shared_ptr<Corvane::Style> frmStyles::Selected() const {
  if (ctStyle->SelectedListCount() != 1) return nullptr;
  return GetApplication()->Server()->Styles()->Item(ToUtf8(ctStyle->SelectedListRows().front().key));
}

void frmStyles::ctStyle_lvSelChange() {
  SetButtonStatus();
  ShowStyle(*usPreview, Selected());
}

void frmStyles::Edit(const std::shared_ptr<Corvane::Style>& style) {
  frmStyleDetail sheet(this);
  sheet.OpenWindow(style);
  if (!sheet.HasSaved()) return;
  ctStyle->RefreshList();
  const auto position = GetApplication()->Server()->Styles()->View().PositionOf(style->Stored().id);
  if (position >= 0 && position < ctStyle->ListCount()) ctStyle->SelectListRow(position);
  ctStyle_lvSelChange();
}

void frmStyles::cmdAdd_Click() {
  Edit(GetApplication()->Server()->Styles()->Add());
}

void frmStyles::cmdProperties_Click() {
  if (const auto style = Selected()) Edit(style);
}

bool frmStyles::ConfirmRemoval(const Corvane::Style& style) {
  using Tessaline::Buttons;
  using Tessaline::MessageKind;
  const auto domains = style.Domains().Count();
  std::vector<wxString> parameters = {ToWx(style.Name())};
  if (domains > 0) parameters.push_back(ToWx(std::to_string(domains)));
  return GetMessenger().Ask(domains > 0 ? texts::kRemoveUsedStyle : texts::kRemoveStyle, texts::kRemoveTitle,
                            Buttons::YesNoDefaultNo, MessageKind::Question, parameters, this);
}

void frmStyles::cmdRemove_Click() {
  const auto style = Selected();
  if (!style || !ConfirmRemoval(*style)) return;
  GetApplication()->Server()->Styles()->Delete({style->Stored().id, style->Stored().version});
  ctStyle->RefreshList();
  ctStyle_lvSelChange();
}

}  // namespace mindloft
