#include "controls/print/frmPageSetup.h"

#include <wx/button.h>
#include <wx/choice.h>

#include "controls/RegisterControls.h"
#include "controls/print/UserPrintSetup.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr const char* kName = "frmPageSetup";

}  // namespace

frmPageSetup::frmPageSetup(wxWindow* owner) : FormDialog(WithControls(owner), kName) {
  PrintSetup = Find<UserPrintSetup>("PrintSetup");
  SetButtons("cmdOK", "CmdCancel");
  Find<wxButton>("cmdOK")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdOK_Click(); });
  Find<wxButton>("CmdCancel")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CmdCancel_Click(); });
  LoadInfoOnForm();
  language_ = GetRefresh()->OnNotifyLanguage([this] { Refresh_NotifyLanguage(); });
}

bool frmPageSetup::ShowPageSetup(const PageSettings& settings) try {
  accepted_ = false;
  settings_ = settings;
  PrintSetup->Load(settings);
  CentreOnParent();
  Find<wxChoice>("cboPrinter")->SetFocus();
  ShowModal();
  return accepted_;
} catch (...) {
  mindloft::Raise(kName, "ShowPageSetup");
}

void frmPageSetup::MatchingPaper() try { PrintSetup->MatchingPaper(); } catch (...) {
  mindloft::Raise(kName, "MatchingPaper");
}

void frmPageSetup::SetOrientation(std::int32_t orientation) try {
  settings_.orientation = ReadOrientation(orientation);
} catch (...) {
  mindloft::Raise(kName, "Orientation");
}

void frmPageSetup::SetOrientation(const wxString& orientation) try {
  settings_.orientation = ReadOrientation(orientation);
} catch (...) {
  mindloft::Raise(kName, "Orientation");
}

void frmPageSetup::LoadInfoOnForm() try {
  PrintSetup->LoadInfoOnControl();
  FormDialog::LoadInfoOnForm();
} catch (...) {
  mindloft::Raise(kName, "LoadInfoOnForm");
}

void frmPageSetup::Refresh_NotifyLanguage() try { LoadInfoOnForm(); } catch (...) {
  ShowError(kName, "Refresh_NotifyLanguage");
}

void frmPageSetup::cmdOK_Click() try {
  if (!PrintSetup->ValidateMargin()) return;
  // The number that Enter was pressed in has not been left, and what was given may be outside the bounds.
  if (!PrintSetup->CheckBounds() || !PrintSetup->ValidateMargin()) return;
  settings_ = PrintSetup->Settings();
  accepted_ = true;
  EndModal(wxID_OK);
} catch (...) {
  ShowError(kName, "cmdOK_Click");
}

void frmPageSetup::CmdCancel_Click() try {
  accepted_ = false;
  EndModal(wxID_CANCEL);
} catch (...) {
  ShowError(kName, "CmdCancel_Click");
}

bool AskForPage(wxWindow& parent, PageSettings& page) {
  frmPageSetup form(wxGetTopLevelParent(&parent));
  if (!form.ShowPageSetup(page)) return false;
  page = form.Settings();
  SavePageSettings(page);
  return true;
}

}  // namespace mindloft
