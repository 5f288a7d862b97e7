#include "controls/richtext/frmRichFont.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/clrpicker.h>
#include <wx/spinctrl.h>

#include "controls/FontFaces.h"
#include "controls/RegisterControls.h"
#include "core/ErrorHandling.h"

namespace mindloft {

frmRichFont::frmRichFont(wxWindow* parent) : FormDialog(WithControls(parent), "frmRichFont") {
  cboFace = Find<wxChoice>("cboFace");
  spnSize = Find<wxSpinCtrl>("spnSize");
  cpkColour = Find<wxColourPickerCtrl>("cpkColour");
  chkBold = Find<wxCheckBox>("chkBold");
  chkItalic = Find<wxCheckBox>("chkItalic");
  chkUnderline = Find<wxCheckBox>("chkUnderline");
  chkStrike = Find<wxCheckBox>("chkStrike");
  SetButtons("cmdOK", "cmdCancel");
  OfferFaces(*cboFace);
  LoadInfoOnForm();
}

bool frmRichFont::Ask(wxRichTextAttr& format) try {
  ShowFormat(format);
  if (ShowModal() != wxID_OK) return false;
  format = Chosen();
  return true;
} catch (...) {
  mindloft::Raise("frmRichFont", "Ask");
}

void frmRichFont::ShowFormat(const wxRichTextAttr& format) {
  ShowFace(*cboFace, format.GetFontFaceName());
  spnSize->SetValue(format.GetFontSize());
  cpkColour->SetColour(format.HasTextColour() ? format.GetTextColour() : *wxBLACK);
  chkBold->SetValue(format.GetFontWeight() >= wxFONTWEIGHT_BOLD);
  chkItalic->SetValue(format.GetFontStyle() == wxFONTSTYLE_ITALIC);
  chkUnderline->SetValue(format.GetFontUnderlined());
  chkStrike->SetValue((format.GetTextEffects() & wxTEXT_ATTR_EFFECT_STRIKETHROUGH) != 0);
}

wxRichTextAttr frmRichFont::Chosen() const {
  wxRichTextAttr format;
  format.SetFontFaceName(cboFace->GetStringSelection());
  format.SetFontPointSize(spnSize->GetValue());
  format.SetTextColour(cpkColour->GetColour());
  format.SetFontWeight(chkBold->IsChecked() ? wxFONTWEIGHT_BOLD : wxFONTWEIGHT_NORMAL);
  format.SetFontStyle(chkItalic->IsChecked() ? wxFONTSTYLE_ITALIC : wxFONTSTYLE_NORMAL);
  format.SetFontUnderlined(chkUnderline->IsChecked());
  format.SetTextEffectFlags(wxTEXT_ATTR_EFFECT_STRIKETHROUGH);
  format.SetTextEffects(chkStrike->IsChecked() ? wxTEXT_ATTR_EFFECT_STRIKETHROUGH : wxTEXT_ATTR_EFFECT_NONE);
  return format;
}

}  // namespace mindloft
