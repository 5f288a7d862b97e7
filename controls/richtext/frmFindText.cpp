#include "controls/richtext/frmFindText.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/textctrl.h>

#include "backend/tessaline/Services.h"
#include "controls/RegisterControls.h"
#include "controls/richtext/RichTextControl.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr int kNotFound = 62100;
constexpr int kReplaced = 62101;
constexpr int kReplaceTitle = 62102;

}  // namespace

frmFindText::frmFindText(RichTextControl& control, bool replaces, const wxString& text,
                         const FindOptions& options)
    : FormDialog(WithControls(wxGetTopLevelParent(&control)), "frmFindText"),
      control_(control),
      replaces_(replaces) {
  txtFind = Find<wxTextCtrl>("txtFind");
  txtReplace = Find<wxTextCtrl>("txtReplace");
  chkCase = Find<wxCheckBox>("chkCase");
  chkWord = Find<wxCheckBox>("chkWord");
  chkUp = Find<wxCheckBox>("chkUp");
  cmdFind = Find<wxButton>("cmdFind");
  cmdReplace = Find<wxButton>("cmdReplace");
  cmdReplaceAll = Find<wxButton>("cmdReplaceAll");
  SetButtons("cmdFind", "cmdClose");
  // Enter searches and leaves the window open.
  SetAffirmativeId(wxID_NONE);
  for (wxWindow* part : {static_cast<wxWindow*>(txtReplace), static_cast<wxWindow*>(cmdReplace),
                         static_cast<wxWindow*>(cmdReplaceAll), Find<wxWindow>("lblReplace")})
    part->Show(replaces);
  txtFind->ChangeValue(text);
  txtFind->SelectAll();
  chkCase->SetValue(options.matchCase);
  chkWord->SetValue(options.wholeWord);
  chkUp->SetValue(options.backwards);
  const auto bind = [this](wxButton* button, const char* name, void (frmFindText::*click)()) {
    button->Bind(wxEVT_BUTTON, [this, name, click](wxCommandEvent&) {
      Guarded("frmFindText", name, [&] { (this->*click)(); });
    });
  };
  bind(cmdFind, "cmdFind_Click", &frmFindText::cmdFind_Click);
  bind(cmdReplace, "cmdReplace_Click", &frmFindText::cmdReplace_Click);
  bind(cmdReplaceAll, "cmdReplaceAll_Click", &frmFindText::cmdReplaceAll_Click);
  bind(Find<wxButton>("cmdClose"), "cmdClose_Click", &frmFindText::CloseWindow);
  txtFind->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { SetButtonStatus(); });
  Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { CloseWindow(); });
  LoadInfoOnForm();
  language_ = GetRefresh()->OnNotifyLanguage(
      [this] { Guarded("frmFindText", "Refresh_NotifyLanguage", [this] { LoadInfoOnForm(); }); });
  SetButtonStatus();
  txtFind->SetFocus();
}

void frmFindText::LoadInfoOnForm() try {
  FormDialog::LoadInfoOnForm();
  if (replaces_) SetTitle(GetResource().GetString(kReplaceTitle));
} catch (...) {
  mindloft::Raise("frmFindText", "LoadInfoOnForm");
}

void frmFindText::Open() {
  const auto* owner = dynamic_cast<wxDialog*>(wxGetTopLevelParent(&control_));
  if (owner && owner->IsModal()) {
    ShowModal();
    Destroy();
  } else {
    Show();
  }
}

void frmFindText::CloseWindow() {
  // Whoever shows it modally still works in it, and destroys it then.
  if (IsModal()) return EndModal(wxID_CANCEL);
  Hide();
  Destroy();
}

FindOptions frmFindText::Options() const {
  return {chkCase->IsChecked(), chkWord->IsChecked(), chkUp->IsChecked()};
}

void frmFindText::SetButtonStatus() {
  const bool hasText = !txtFind->GetValue().empty();
  const bool mayChange = hasText && !control_.Locked();
  cmdFind->Enable(hasText);
  cmdReplace->Enable(mayChange);
  cmdReplaceAll->Enable(mayChange);
}

void frmFindText::Tell(bool found) {
  if (!found) GetMessenger().ShowMessage(kNotFound, {txtFind->GetValue()}, this);
}

void frmFindText::cmdFind_Click() {
  Tell(FindNext(control_.Editor(), txtFind->GetValue(), Options()));
}

void frmFindText::cmdReplace_Click() {
  Tell(ReplaceNext(control_.Editor(), txtFind->GetValue(), txtReplace->GetValue(), Options()));
}

void frmFindText::cmdReplaceAll_Click() {
  const int replaced = ReplaceAll(control_.Editor(), txtFind->GetValue(), txtReplace->GetValue(), Options());
  if (replaced == 0) return Tell(false);
  GetMessenger().ShowMessage(kReplaced, {wxString::Format("%d", replaced)}, this);
}

}  // namespace mindloft
