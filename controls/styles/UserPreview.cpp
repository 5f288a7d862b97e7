#include "controls/styles/UserPreview.h"

#include <wx/dcclient.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include <algorithm>

#include "backend/corvane/Style.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/styles/PreviewBox.h"
#include "controls/styles/StyleFont.h"
#include "controls/styles/StyleTexts.h"
#include "core/ErrorHandling.h"
#include "platform/Lengths.h"

namespace mindloft {
namespace {

constexpr const char* kLineBreak = "\r\n";

wxColour DesktopColour() {
  return wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW);
}

}  // namespace

UserPreview::UserPreview(wxWindow* parent, const wxString& name) {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

bool UserPreview::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                         long style, const wxString& name) {
  if (!wxPanel::Create(parent, id, position, size, style, name)) return false;
  picPreview = new PreviewBox(this, "picPreview");
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(picPreview, wxSizerFlags(1).Expand());
  SetSizer(sizer);
  SetInitialSize(size);
  font_ = GetFont();
  return true;
}

const PropertyTable<UserPreview>& UserPreview::Properties() {
  using C = UserPreview;
  static const PropertyTable<C> table{
      KeptProperty("PreviewText", &C::PreviewText, &C::SetPreviewText, wxString()),
  };
  return table;
}

wxSize UserPreview::DoGetBestClientSize() const {
  return FromDIP(wxSize(240, 90));
}

void UserPreview::SetPreviewText(const wxString& text) try {
  previewText_ = text;
  PropertyChanged();
} catch (...) {
  mindloft::Raise("UserPreview", "PreviewText");
}

void UserPreview::Preview(const std::shared_ptr<Corvane::Style>& style) try {
  picPreview->Clear();
  picPreview->SetBackgroundColour(DesktopColour());
  picPreview->Refresh();
  if (!style) return;
  const auto format = style->Format();
  wxRichTextAttr look;
  if (!ApplyFont(format, look)) return;
  ApplyColour(format, look);
  ApplyAlignment(format, look);
  ApplyDistances(format, look);
  ApplyBackground(format);
  InsertText(look);
} catch (...) {
  mindloft::Raise("UserPreview", "Preview");
}

bool UserPreview::ApplyFont(const Corvane::StyleFormat& format, wxRichTextAttr& look) {
  const auto letters = LettersOfStyle(format);
  if (!letters) {
    GetMessenger().ShowMessage(texts::kFontNotInstalled, {ToWx(format.fontName)}, this);
    return false;
  }
  look = *letters;
  font_ = look.GetFont();
  return true;
}

void UserPreview::ApplyColour(const Corvane::StyleFormat& format, wxRichTextAttr& look) {
  wxColour colour;
  if (!colour.Set(ToWx(format.colour))) colour = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
  look.SetTextColour(colour);
}

void UserPreview::ApplyAlignment(const Corvane::StyleFormat& format, wxRichTextAttr& look) {
  const bool rightToLeft = GetResource().IsRightToLeft();
  switch (format.alignment) {
    case Corvane::StyleFormat::AlignRight:
      look.SetAlignment(wxTEXT_ALIGNMENT_RIGHT);
      break;
    case Corvane::StyleFormat::AlignCentred:
      look.SetAlignment(wxTEXT_ALIGNMENT_CENTRE);
      break;
    default:
      look.SetAlignment(rightToLeft ? wxTEXT_ALIGNMENT_RIGHT : wxTEXT_ALIGNMENT_LEFT);
  }
}

// The box knows no indent beyond its edges, and tells the first line's from that of the lines below it.
void UserPreview::ApplyDistances(const Corvane::StyleFormat& format, wxRichTextAttr& look) const {
  const auto scaled = [](const std::string& text, int unit) { return GetIntValue(ToWx(text)) * unit; };
  const int width = GetFontWidth(), height = GetFontHeight();
  const int left = std::max(0, scaled(format.leftIndent, width));
  const int right = std::max(0, scaled(format.rightIndent, width));
  look.SetRightIndent(right);
  const int firstLine = std::max(0, left + scaled(format.firstLineIndent, width));
  look.SetLeftIndent(firstLine, left - firstLine);
  look.SetParagraphSpacingBefore(std::max(0, scaled(format.spaceBefore, height)));
  look.SetParagraphSpacingAfter(std::max(0, scaled(format.spaceAfter, height)));
}

void UserPreview::ApplyBackground(const Corvane::StyleFormat& format) {
  wxColour colour;
  if (colour.Set(ToWx(format.background))) picPreview->SetBackgroundColour(colour);
}

void UserPreview::InsertText(const wxRichTextAttr& look) {
  wxString text = previewText_;
  text.Replace(kLineBreak, "\n");
  picPreview->WriteText(text);
  // Written in a style, the last paragraph would not take part in it.
  picPreview->SetStyleEx(picPreview->GetBuffer().GetOwnRange(), look, wxRICHTEXT_SETSTYLE_NONE);
  // The lines were broken as the text stood before.
  picPreview->GetBuffer().Invalidate(wxRICHTEXT_ALL);
  picPreview->LayoutContent();
  picPreview->Refresh();
  picPreview->ShowPosition(0);
}

int UserPreview::GetIntValue(const wxString& text) try { return GetConvert().ToInteger(text); } catch (...) {
  return 0;
}

int UserPreview::GetFontHeight() const {
  return LetterSize().y;
}

int UserPreview::GetFontWidth() const {
  return LetterSize().x;
}

wxSize UserPreview::LetterSize() const {
  wxClientDC dc(picPreview);
  dc.SetFont(font_);
  const wxSize letter = dc.GetTextExtent("a"), perInch = dc.GetPPI();
  return {letter.x * platform::kTenthsPerInch / std::max(1, perInch.x),
          letter.y * platform::kTenthsPerInch / std::max(1, perInch.y)};
}

}  // namespace mindloft
