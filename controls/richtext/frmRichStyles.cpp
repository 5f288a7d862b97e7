#include "controls/richtext/frmRichStyles.h"

#include <wx/listbox.h>

#include "controls/RegisterControls.h"
#include "controls/richtext/RichStyles.h"
#include "core/ErrorHandling.h"

namespace mindloft {

frmRichStyles::frmRichStyles(wxWindow* parent) : FormDialog(WithControls(parent), "frmRichStyles") {
  lstStyles = Find<wxListBox>("lstStyles");
  SetButtons("cmdOK", "cmdCancel");
  for (const RichStyle& style : RichStyles()) lstStyles->Append(StyleText(style.name));
  lstStyles->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { EndModal(GetAffirmativeId()); });
  LoadInfoOnForm();
}

bool frmRichStyles::Ask(wxString& format) try {
  ShowFormat(format);
  if (ShowModal() != wxID_OK) return false;
  format = Chosen();
  return true;
} catch (...) {
  mindloft::Raise("frmRichStyles", "Ask");
}

void frmRichStyles::ShowFormat(const wxString& format) {
  const int found = lstStyles->FindString(StyleText(format), true);
  lstStyles->SetSelection(found == wxNOT_FOUND ? 0 : found);
}

wxString frmRichStyles::Chosen() const {
  const int chosen = lstStyles->GetSelection();
  return chosen == wxNOT_FOUND ? wxString(kNormalStyle)
                               : wxString(RichStyles()[static_cast<std::size_t>(chosen)].name);
}

}  // namespace mindloft
