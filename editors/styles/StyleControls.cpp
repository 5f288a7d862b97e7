#include "editors/styles/StyleControls.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/clrpicker.h>
#include <wx/combobox.h>

#include <array>
#include <utility>

#include "backend/errors/Error.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/numbers/UserTextNumber.h"
#include "controls/styles/StyleFont.h"
#include "controls/texts/UseMultiLineTextBox.h"
#include "core/forms/Form.h"
#include "editors/styles/StyleEditorTexts.h"

namespace mindloft {
namespace {

using Corvane::StyleFormat;

/// The number in the box; nothing when it is none or outside the box's limits.
std::optional<int> NumberIn(const UserTextNumber& box) {
  const wxString text = box.Text();
  if (GetStringHelper().IsBlank(text)) return std::nullopt;
  long number = 0;
  if (!text.Strip(wxString::both).ToLong(&number)) return std::nullopt;
  const bool fits = number >= box.MinValue() && number <= box.MaxValue();
  return fits ? std::optional(static_cast<int>(number)) : std::nullopt;
}

void TakeNumber(const UserTextNumber& box, std::string& place) {
  if (const auto number = NumberIn(box)) place = std::to_string(*number);
}

/// The colour of a picker, if the box before it is checked.
std::string ColourOf(const wxCheckBox& box, const wxColourPickerCtrl& picker) {
  return box.GetValue() ? ToUtf8(picker.GetColour().GetAsString(wxC2S_HTML_SYNTAX)) : std::string();
}

void ShowColour(wxCheckBox& box, wxColourPickerCtrl& picker, const std::string& text) {
  wxColour colour;
  const bool set = colour.Set(ToWx(text));
  box.SetValue(set);
  if (set) picker.SetColour(colour);
}

}  // namespace

StyleControls::StyleControls(const FormDialog& form, const std::function<void()>& changed) {
  cboFont = FindControl<wxComboBox>(form, "cboFont");
  txtSize = FindControl<UserTextNumber>(form, "txtSize");
  chkBold = FindControl<wxCheckBox>(form, "chkBold");
  chkItalic = FindControl<wxCheckBox>(form, "chkItalic");
  chkUnderline = FindControl<wxCheckBox>(form, "chkUnderline");
  chkStrikeThrough = FindControl<wxCheckBox>(form, "chkStrikeThrough");
  chkColour = FindControl<wxCheckBox>(form, "chkColour");
  clrText = FindControl<wxColourPickerCtrl>(form, "clrText");
  cboAlignment = FindControl<wxChoice>(form, "cboAlignment");
  txtLeftIndent = FindControl<UserTextNumber>(form, "txtLeftIndent");
  txtRightIndent = FindControl<UserTextNumber>(form, "txtRightIndent");
  txtFirstLine = FindControl<UserTextNumber>(form, "txtFirstLine");
  txtSpaceBefore = FindControl<UserTextNumber>(form, "txtSpaceBefore");
  txtSpaceAfter = FindControl<UserTextNumber>(form, "txtSpaceAfter");
  chkBackground = FindControl<wxCheckBox>(form, "chkBackground");
  clrBackground = FindControl<wxColourPickerCtrl>(form, "clrBackground");
  txtSample = FindControl<UseMultiLineTextBox>(form, "txtSample");
  for (const auto& font : StyleFonts()) cboFont->Append(font);
  cboFont->SetMaxLength(StyleFormat::kLongestFontName);
  LoadInfo();
  Bind(changed);
}

void StyleControls::Bind(const std::function<void()>& changed) {
  const auto command = [changed](wxCommandEvent&) { changed(); };
  cboFont->Bind(wxEVT_TEXT, command);
  cboFont->Bind(wxEVT_COMBOBOX, [this, changed](wxCommandEvent& event) {
    // Not every desktop has put the entry into the box by now.
    const int entry = event.GetSelection();
    if (entry >= 0) cboFont->ChangeValue(cboFont->GetString(static_cast<unsigned>(entry)));
    changed();
  });
  cboAlignment->Bind(wxEVT_CHOICE, command);
  for (auto* box : {chkBold, chkItalic, chkUnderline, chkStrikeThrough}) box->Bind(wxEVT_CHECKBOX, command);
  for (auto* box : {chkColour, chkBackground}) {
    box->Bind(wxEVT_CHECKBOX, [this, changed](wxCommandEvent&) {
      SetColourStatus(enabled_);
      changed();
    });
  }
  for (auto* picker : {clrText, clrBackground})
    picker->Bind(wxEVT_COLOURPICKER_CHANGED, [changed](wxColourPickerEvent&) { changed(); });
  for (auto* box : {txtSize, txtLeftIndent, txtRightIndent, txtFirstLine, txtSpaceBefore, txtSpaceAfter})
    box->Change = changed;
  txtSample->Change = changed;
}

void StyleControls::LoadInfo() {
  const int chosen = cboAlignment->GetSelection();
  wxArrayString names;
  // In the order of the values that a format has.
  for (const int number : {texts::kAlignStandard, texts::kAlignRight, texts::kAlignCentred})
    names.Add(GetResource().GetString(number));
  cboAlignment->Set(names);
  cboAlignment->SetSelection(chosen);
}

void StyleControls::Show(const StyleFormat& format) {
  cboFont->ChangeValue(ToWx(format.fontName));
  txtSize->SetText(wxString::Format("%d", format.fontSize));
  chkBold->SetValue(format.bold);
  chkItalic->SetValue(format.italic);
  chkUnderline->SetValue(format.underline);
  chkStrikeThrough->SetValue(format.strikeThrough);
  ShowColour(*chkColour, *clrText, format.colour);
  cboAlignment->SetSelection(format.alignment);
  txtLeftIndent->SetText(ToWx(format.leftIndent));
  txtRightIndent->SetText(ToWx(format.rightIndent));
  txtFirstLine->SetText(ToWx(format.firstLineIndent));
  txtSpaceBefore->SetText(ToWx(format.spaceBefore));
  txtSpaceAfter->SetText(ToWx(format.spaceAfter));
  ShowColour(*chkBackground, *clrBackground, format.background);
  txtSample->SetText(ToWx(format.sample));
}

StyleFormat StyleControls::Format(const StyleFormat& former) const {
  StyleFormat format = former;
  format.fontName = ToUtf8(cboFont->GetValue().Strip(wxString::both));
  format.fontSize = NumberIn(*txtSize).value_or(former.fontSize);
  format.bold = chkBold->GetValue();
  format.italic = chkItalic->GetValue();
  format.underline = chkUnderline->GetValue();
  format.strikeThrough = chkStrikeThrough->GetValue();
  format.colour = ColourOf(*chkColour, *clrText);
  format.alignment = cboAlignment->GetSelection();
  TakeNumber(*txtLeftIndent, format.leftIndent);
  TakeNumber(*txtRightIndent, format.rightIndent);
  TakeNumber(*txtFirstLine, format.firstLineIndent);
  TakeNumber(*txtSpaceBefore, format.spaceBefore);
  TakeNumber(*txtSpaceAfter, format.spaceAfter);
  format.background = ColourOf(*chkBackground, *clrBackground);
  format.sample = ToUtf8(txtSample->Text());
  return format;
}

std::optional<StyleControls::Fault> StyleControls::FirstFault() const {
  for (auto* box : {txtSize, txtLeftIndent, txtRightIndent, txtFirstLine, txtSpaceBefore, txtSpaceAfter})
    if (!NumberIn(*box)) return Fault{box, box->MinValue(), box->MaxValue()};
  return std::nullopt;
}

void StyleControls::Enable(bool enabled) {
  enabled_ = enabled;
  for (wxWindow* window : std::initializer_list<wxWindow*>{cboFont, chkBold, chkItalic, chkUnderline,
                                                           chkStrikeThrough, cboAlignment})
    window->Enable(enabled);
  for (auto* box : {txtSize, txtLeftIndent, txtRightIndent, txtFirstLine, txtSpaceBefore, txtSpaceAfter})
    box->SetEnabled(enabled);
  txtSample->SetLocked(!enabled);
  SetColourStatus(enabled);
}

void StyleControls::SetColourStatus(bool enabled) {
  chkColour->Enable(enabled);
  chkBackground->Enable(enabled);
  clrText->Enable(enabled && chkColour->GetValue());
  clrBackground->Enable(enabled && chkBackground->GetValue());
}

}  // namespace mindloft
