#include "controls/print/UserPrintSetup.h"

#include <wx/choice.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "backend/tessaline/Services.h"
#include "controls/numbers/NumberPicture.h"
#include "controls/numbers/ucMaskedNumber.h"
#include "controls/print/PagePicture.h"
#include "controls/print/PrintTexts.h"
#include "core/ErrorHandling.h"
#include "core/forms/Form.h"
#include "core/forms/FormResource.h"
#include "platform/Lengths.h"

namespace mindloft {
namespace {

constexpr const char* kName = "UserPrintSetup";

wxString Millimetres(std::int32_t tenths) {
  static const NumberPicture oneDecimal("0.0");
  return oneDecimal.Format(platform::MillimetresOf(tenths));
}

}  // namespace

UserPrintSetup::UserPrintSetup(wxWindow* parent, const wxString& name) {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

bool UserPrintSetup::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                            long style, const wxString& name) {
  if (!wxPanel::Create(parent, id, position, size, style | wxTAB_TRAVERSAL | wxBORDER_NONE, name))
    return false;
  content_ = new wxPanel;
  FormResource::Get().Load(content_, this, kName, "wxPanel");
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(content_, wxSizerFlags(1).Expand());
  SetSizer(sizer);
  FindControls();
  for (ucMaskedNumber* number : numbers_) number->SetUnitsPerShown(platform::kTenthsPerMillimetre);
  const PageSettings usual;
  txtPaperWidth->SetValue(usual.paperWidth);
  txtPaperHeight->SetValue(usual.paperHeight);
  txtLeftMargin->SetValue(usual.leftMargin);
  txtRightMargin->SetValue(usual.rightMargin);
  txtTopMargin->SetValue(usual.topMargin);
  txtBottomMargin->SetValue(usual.bottomMargin);
  BindControls();
  LoadInfoOnControl();
  return true;
}

const PropertyTable<UserPrintSetup>& UserPrintSetup::Properties() {
  static const PropertyTable<UserPrintSetup> none{};
  return none;
}

void UserPrintSetup::FindControls() {
  cboPrinter = FindControl<wxChoice>(*this, "cboPrinter");
  cboPaper = FindControl<wxChoice>(*this, "cboPaper");
  txtPaperWidth = FindControl<ucMaskedNumber>(*this, "txtPaperWidth");
  txtPaperHeight = FindControl<ucMaskedNumber>(*this, "txtPaperHeight");
  txtLeftMargin = FindControl<ucMaskedNumber>(*this, "txtLeftMargin");
  txtRightMargin = FindControl<ucMaskedNumber>(*this, "txtRightMargin");
  txtTopMargin = FindControl<ucMaskedNumber>(*this, "txtTopMargin");
  txtBottomMargin = FindControl<ucMaskedNumber>(*this, "txtBottomMargin");
  OptPortrait = FindControl<wxRadioButton>(*this, "OptPortrait");
  OptLandscape = FindControl<wxRadioButton>(*this, "OptLandscape");
  lblHint = FindControl<wxStaticText>(*this, "lblHint");
  lblArea = FindControl<wxStaticText>(*this, "lblArea");
  picPage = FindControl<PagePicture>(*this, "picPage");
  numbers_ = {txtPaperWidth, txtPaperHeight, txtLeftMargin, txtRightMargin, txtTopMargin, txtBottomMargin};
}

void UserPrintSetup::BindControls() {
  cboPrinter->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboPrinter_Click(); });
  cboPaper->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboPaper_Click(); });
  for (wxRadioButton* option : {OptPortrait, OptLandscape})
    option->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { OnTurned(); });
  for (ucMaskedNumber* number : numbers_) number->Change = [this, number] { OnNumberChanged(*number); };
  for (ucMaskedNumber* number : {txtPaperWidth, txtPaperHeight}) number->LostFocus = [this] { OnSizeLeft(); };
  lblHint->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    ShowHint(hint_);
  });
}

void UserPrintSetup::LoadInfoOnControl() try {
  GetResource().LoadInfoOnForm(*content_);
  ShowState(shownText_);
  InvalidateBestSize();
  GetSizer()->SetSizeHints(this);
} catch (...) {
  mindloft::Raise(kName, "LoadInfoOnControl");
}

void UserPrintSetup::OnTurned() try {
  if (IsLandscape() == isLandscapeShown_) return;
  const std::int32_t width = PaperWIdth();
  SetPaperWIdth(PaperHeight());
  SetPaperHeight(width);
  isLandscapeShown_ = IsLandscape();
  MatchingPaper();
} catch (...) {
  ShowError(kName, "OnTurned");
}

void UserPrintSetup::OnNumberChanged(const ucMaskedNumber& box) try {
  if (loading_.Active()) return;
  const bool isSize = &box == txtPaperWidth || &box == txtPaperHeight;
  if (!isSize) return ShowState();
  isPrinterNew_ = false;
  // A size that is being typed gets its paper when it is complete.
  const wxWindow* focus = FindFocus();
  const bool isTyped = focus && focus->GetParent() == &box;
  if (isTyped)
    ShowState();
  else
    MatchingPaper();
} catch (...) {
  ShowError(kName, "OnNumberChanged");
}

void UserPrintSetup::OnSizeLeft() try { MatchingPaper(); } catch (...) {
  ShowError(kName, "OnSizeLeft");
}

bool UserPrintSetup::ValidateMargin() try {
  const auto sum = [](const ucMaskedNumber& one, const ucMaskedNumber& other) {
    return std::int64_t{one.Value()} + other.Value();
  };
  const bool fits = sum(*txtLeftMargin, *txtRightMargin) <= PaperWIdth() &&
                    sum(*txtTopMargin, *txtBottomMargin) <= PaperHeight();
  if (fits) return true;
  ShowState(texts::kMarginsTooLarge);
  SetMarginFocus(*txtLeftMargin);
  return false;
} catch (...) {
  mindloft::Raise(kName, "ValidateMargin");
}

void UserPrintSetup::SetMarginFocus(ucMaskedNumber& margin) try { margin.SelectAll(); } catch (...) {
  mindloft::Raise(kName, "SetMarginFocus");
}

bool UserPrintSetup::CheckBounds() try {
  ucMaskedNumber* changed = nullptr;
  for (ucMaskedNumber* number : numbers_) {
    const std::int32_t before = number->Value();
    number->MaskEdBox_Validate();
    if (!changed && number->Value() != before) changed = number;
  }
  MatchingPaper();
  if (!changed) return true;
  ShowState(texts::kSizeChanged);
  changed->SelectAll();
  return false;
} catch (...) {
  mindloft::Raise(kName, "CheckBounds");
}

void UserPrintSetup::ShowState(int text) {
  shownText_ = text;
  const PageSettings settings = Settings();
  picPage->ShowPage(settings);
  const wxRect area = PrintedArea(settings);
  lblArea->SetLabelText(GetResource().GetFormatString(texts::kPrintedArea,
                                                      {Millimetres(area.width), Millimetres(area.height)}));
  ShowHint(StateText(text));
}

wxString UserPrintSetup::StateText(int text) const {
  const Tessaline::Resource& resource = GetResource();
  if (text != 0) return resource.GetString(text);
  if (!werePrintersAsked_) return {};
  if (query_.IsAsking())
    return resource.GetString(printers_.empty() ? texts::kAskingForPrinters : texts::kAskingForPapers);
  if (printers_.empty()) return resource.GetString(texts::kNoPrinter);
  const bool isUnknown = cboPrinter->GetSelection() == wxNOT_FOUND;
  if (isPrinterGone_ || isUnknown) return resource.GetFormatString(texts::kPrinterGone, {PrinterName()});
  if (papers_.IsEmpty()) return resource.GetString(texts::kNoPapers);
  return cboPaper->GetSelection() == wxNOT_FOUND ? resource.GetString(texts::kNoSuchPaper) : wxString();
}

void UserPrintSetup::ShowHint(const wxString& hint) {
  hint_ = hint;
  lblHint->SetLabelText(hint);
  lblHint->Wrap(lblHint->GetClientSize().x);
}

}  // namespace mindloft
