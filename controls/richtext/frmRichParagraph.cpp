#include "controls/richtext/frmRichParagraph.h"

#include <wx/choice.h>
#include <wx/spinctrl.h>

#include <algorithm>

#include "backend/tessaline/Services.h"
#include "controls/RegisterControls.h"
#include "core/ErrorHandling.h"
#include "platform/Lengths.h"

namespace mindloft {
namespace {

constexpr int kAlignmentTexts[] = {62017, 62018, 62019, 62020};
constexpr int kSpacings[] = {wxTEXT_ATTR_LINE_SPACING_NORMAL, wxTEXT_ATTR_LINE_SPACING_HALF,
                             wxTEXT_ATTR_LINE_SPACING_TWICE};
constexpr int kSpacingTexts[] = {62070, 62071, 62072};

int TenthsIn(const wxSpinCtrlDouble& box) {
  return platform::TenthsOf(box.GetValue());
}

}  // namespace

frmRichParagraph::frmRichParagraph(wxWindow* parent) : FormDialog(WithControls(parent), "frmRichParagraph") {
  cboAlignment = Find<wxChoice>("cboAlignment");
  spnLeft = Find<wxSpinCtrlDouble>("spnLeft");
  spnRight = Find<wxSpinCtrlDouble>("spnRight");
  spnFirst = Find<wxSpinCtrlDouble>("spnFirst");
  spnBefore = Find<wxSpinCtrlDouble>("spnBefore");
  spnAfter = Find<wxSpinCtrlDouble>("spnAfter");
  cboSpacing = Find<wxChoice>("cboSpacing");
  SetButtons("cmdOK", "cmdCancel");
  for (const int text : kAlignmentTexts) cboAlignment->Append(GetResource().GetString(text));
  for (const int text : kSpacingTexts) cboSpacing->Append(GetResource().GetString(text));
  LoadInfoOnForm();
}

bool frmRichParagraph::Ask(wxRichTextAttr& format) try {
  ShowFormat(format);
  if (ShowModal() != wxID_OK) return false;
  format = Chosen();
  return true;
} catch (...) {
  mindloft::Raise("frmRichParagraph", "Ask");
}

void frmRichParagraph::ShowFormat(const wxRichTextAttr& format) {
  const int alignment =
      format.HasAlignment() ? static_cast<int>(format.GetAlignment()) : wxTEXT_ALIGNMENT_LEFT;
  cboAlignment->SetSelection(std::clamp(alignment - wxTEXT_ALIGNMENT_LEFT, 0, 3));
  // The component keeps the first line's indent, and by how much more the others have.
  spnLeft->SetValue(platform::MillimetresOf(format.GetLeftIndent() + format.GetLeftSubIndent()));
  spnFirst->SetValue(platform::MillimetresOf(-format.GetLeftSubIndent()));
  spnRight->SetValue(platform::MillimetresOf(format.GetRightIndent()));
  spnBefore->SetValue(platform::MillimetresOf(format.GetParagraphSpacingBefore()));
  spnAfter->SetValue(platform::MillimetresOf(format.GetParagraphSpacingAfter()));
  const int* spacing = std::find(std::begin(kSpacings), std::end(kSpacings), format.GetLineSpacing());
  cboSpacing->SetSelection(spacing == std::end(kSpacings) ? 0 : static_cast<int>(spacing - kSpacings));
}

wxRichTextAttr frmRichParagraph::Chosen() const {
  wxRichTextAttr format;
  format.SetAlignment(static_cast<wxTextAttrAlignment>(cboAlignment->GetSelection() + wxTEXT_ALIGNMENT_LEFT));
  // Nothing stands left of the margin.
  const int first = std::max(0, TenthsIn(*spnLeft) + TenthsIn(*spnFirst));
  format.SetLeftIndent(first, TenthsIn(*spnLeft) - first);
  format.SetRightIndent(TenthsIn(*spnRight));
  format.SetParagraphSpacingBefore(TenthsIn(*spnBefore));
  format.SetParagraphSpacingAfter(TenthsIn(*spnAfter));
  format.SetLineSpacing(kSpacings[std::max(0, cboSpacing->GetSelection())]);
  return format;
}

}  // namespace mindloft
