#include "editors/PropertySheet.h"

#include <wx/bookctrl.h>
#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/utils.h>

#include "backend/tessaline/Services.h"
#include "controls/RegisterControls.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr int kPropertiesOf = 59352;
constexpr int kLoseChanges = 61600;

/// Never in less room than the contents need, as at first, when a page has no size yet: the desktop complains
/// about controls that are squeezed.
void LayoutPage(wxWindow& page) {
  if (!page.GetSizer()) return;
  wxSize room = page.GetClientSize();
  room.IncTo(page.GetSizer()->GetMinSize());
  page.GetSizer()->SetDimension(wxPoint(), room);
}

}  // namespace

PropertySheet::PropertySheet(wxWindow* parent, const char* formName, const char* tabs)
    : FormDialog(WithControls(parent), formName), className_(formName) {
  cmdOK = Find<wxButton>("cmdOK");
  cmdApply = Find<wxButton>("cmdApply");
  cmdCancel = Find<wxButton>("cmdCancel");
  if (*tabs) tabs_ = Find<wxBookCtrlBase>(tabs);
  SetButtons("cmdOK", "cmdCancel");
  BindHandlers();
}

void PropertySheet::BindHandlers() {
  cmdOK->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { RunSaving("CmdOK_Click", [this] { CmdOK_Click(); }); });
  cmdApply->Bind(wxEVT_BUTTON,
                 [this](wxCommandEvent&) { RunSaving("cmdApply_Click", [this] { cmdApply_Click(); }); });
  cmdCancel->Bind(wxEVT_BUTTON,
                  [this](wxCommandEvent&) { RunGuarded("CmdCancel_Click", [this] { CmdCancel_Click(); }); });
  // Esc is the close box: unlike the button it may have been pressed by mistake.
  Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_ESCAPE && event.GetModifiers() == wxMOD_NONE)
      Close();
    else
      event.Skip();
  });
  Bind(wxEVT_CLOSE_WINDOW, &PropertySheet::Form_QueryUnload, this);
  if (!tabs_) return;
  for (std::size_t page = 0; page < tabs_->GetPageCount(); ++page) {
    wxWindow* window = tabs_->GetPage(page);
    window->SetAutoLayout(false);
    window->Bind(wxEVT_SIZE, [window](wxSizeEvent&) { LayoutPage(*window); });
  }
  tabs_->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [this](wxBookCtrlEvent& event) {
    event.Skip();
    if (event.GetEventObject() != tabs_ || event.GetSelection() < 0) return;
    const int page = event.GetSelection();
    RunEvent((tabs_->GetName() + "_Click").utf8_str(), [this, page] { ShowPage(page); });
  });
}

void PropertySheet::RunGuarded(const char* procedureName, const std::function<void()>& procedure) noexcept
    try {
  procedure();
} catch (...) {
  ShowError(className_, procedureName);
}

void PropertySheet::RunSaving(const char* procedureName, const std::function<void()>& procedure) noexcept
    try {
  for (;;) {
    try {
      procedure();
      return;
    } catch (const Error& error) {
      if (error.Number() != ErrorNumber::Conflict) throw;
      if (MergeConflict(error)) continue;
    }
    cmdApply->Enable();
    return;
  }
} catch (...) {
  cmdApply->Enable();
  ShowError(className_, procedureName);
}

void PropertySheet::LoadInfoOnForm() try {
  FormDialog::LoadInfoOnForm();
  for (std::size_t page = 0; tabs_ && page < tabs_->GetPageCount(); ++page) LayoutPage(*tabs_->GetPage(page));
  ShowCaption();
} catch (...) {
  mindloft::Raise(className_, "LoadInfoOnForm");
}

void PropertySheet::FollowLanguage() {
  language_ = GetRefresh()->OnNotifyLanguage([this] { Refresh_NotifyLanguage(); });
}

void PropertySheet::Refresh_NotifyLanguage() try { LoadInfoOnForm(); } catch (...) {
  ShowError(className_, "Refresh_NotifyLanguage");
}

void PropertySheet::SetCaption(bool isNew, int newText, const wxString& name) {
  auto& resource = GetResource();
  SetTitle(isNew ? resource.GetString(newText) : resource.GetString(kPropertiesOf) + " " + name);
}

int PropertySheet::Open() {
  if (tabs_) {
    tabs_->ChangeSelection(0);
    ShowPage(0);
    // Some desktops would begin at the tabs, where nothing can be typed.
    tabs_->GetPage(0)->SetFocus();
  } else {
    SetButtonStatus();
  }
  CentreOnParent();
  return ShowModal();
}

void PropertySheet::SelectPage(int page) {
  if (!tabs_ || tabs_->GetSelection() == page) return;
  tabs_->ChangeSelection(static_cast<std::size_t>(page));
  ShowPage(page);
}

void PropertySheet::ShowPage(int page) {
  if (filled_.count(page) == 0) {
    const wxBusyCursor busy;
    const LoadingGuard::Lock lock(loading_);
    FillPage(page);
    filled_.insert(page);
  }
  SetButtonStatus();
}

void PropertySheet::FillAgain(int page) {
  filled_.erase(page);
  if (tabs_ && tabs_->GetSelection() == page) ShowPage(page);
}

void PropertySheet::Form_QueryUnload(wxCloseEvent& event) try {
  if (!IsModal()) {
    event.Skip();
    return;
  }
  const bool mayStay = event.CanVeto() && HasChanges();
  if (mayStay &&
      !GetMessenger().Ask(kLoseChanges, Tessaline::kWarningTitle, Tessaline::Buttons::YesNoDefaultNo,
                          Tessaline::MessageKind::Question, {}, this)) {
    event.Veto();
    return;
  }
  CmdCancel_Click();
} catch (...) {
  ShowError(className_, "Form_QueryUnload");
}

void PropertySheet::CloseSheet(int result) {
  // A second request, as from a key pressed twice, finds the sheet closed already.
  if (!IsModal() || !IsShown()) return;
  EndModal(result);
}

}  // namespace mindloft
