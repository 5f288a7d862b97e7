#include "controls/richtext/frmRichList.h"

#include <wx/choice.h>
#include <wx/spinctrl.h>

#include <algorithm>

#include "backend/tessaline/Services.h"
#include "controls/RegisterControls.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr int kKindTexts[] = {62075, 62076, 62077, 62078, 62079};

}  // namespace

frmRichList::frmRichList(wxWindow* parent) : FormDialog(WithControls(parent), "frmRichList") {
  cboKind = Find<wxChoice>("cboKind");
  spnStart = Find<wxSpinCtrl>("spnStart");
  SetButtons("cmdOK", "cmdCancel");
  for (const int text : kKindTexts) cboKind->Append(GetResource().GetString(text));
  cboKind->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { EnableStart(); });
  LoadInfoOnForm();
}

bool frmRichList::Ask(ListFormat& format) try {
  ShowFormat(format);
  if (ShowModal() != wxID_OK) return false;
  format = Chosen();
  return true;
} catch (...) {
  mindloft::Raise("frmRichList", "Ask");
}

void frmRichList::ShowFormat(const ListFormat& format) {
  cboKind->SetSelection(static_cast<int>(format.kind));
  spnStart->SetValue(std::max(1, format.first));
  EnableStart();
}

ListFormat frmRichList::Chosen() const {
  return {static_cast<BulletKind>(std::max(0, cboKind->GetSelection())), spnStart->GetValue()};
}

/// Only numbers begin with one.
void frmRichList::EnableStart() {
  spnStart->Enable(cboKind->GetSelection() > static_cast<int>(BulletKind::Bullets));
}

}  // namespace mindloft
