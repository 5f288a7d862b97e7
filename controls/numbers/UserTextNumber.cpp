#include "controls/numbers/UserTextNumber.h"

#include <wx/textctrl.h>

#include <algorithm>
#include <cfloat>
#include <cmath>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/StringHelper.h"
#include "controls/bag/PropertyTable.h"
#include "controls/numbers/FilterKey.h"
#include "controls/numbers/NumberText.h"
#include "controls/texts/BoxColours.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr const char* kName = "UserTextNumber";

void RefuseOutside(std::int16_t value, std::int16_t greatest) {
  if (value < 0 || value > greatest)
    throw Error(ErrorNumber::Overflow, "the value must be 0 to " + std::to_string(greatest));
}

}  // namespace

UserTextNumber::UserTextNumber(wxWindow* parent, const wxString& name) {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

bool UserTextNumber::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                            long style, const wxString& name) {
  return CreateParts(parent, id, position, size, style, name, "Text1", "UpDown1");
}

const PropertyTable<UserTextNumber>& UserTextNumber::Properties() {
  using C = UserTextNumber;
  static const PropertyTable<C> table{
      KeptProperty("Enabled", &C::Enabled, &C::SetEnabled, true),
      KeptProperty("BackColor", &C::BackColor, &C::SetBackColor, kWindowColour),
      KeptProperty("MinValue", &C::MinValue, &C::SetMinValue, 0),
      KeptProperty("MaxValue", &C::MaxValue, &C::SetMaxValue, 0),
      KeptProperty("Increment", &C::Increment, &C::SetIncrement, 1),
      KeptProperty("DisplayFormat", &C::DisplayFormat, &C::SetDisplayFormat, "###0"),
      KeptProperty("DisplayUpDownArrow", &C::DisplayUpDownArrow, &C::SetDisplayUpDownArrow, true),
      KeptProperty("BorderStyle", &C::BorderStyle, &C::SetBorderStyle, 1),
      KeptProperty("Alignment", &C::Alignment, &C::SetAlignment, 0),
      KeptProperty("Locked", &C::Locked, &C::SetLocked, false),
      KeptProperty("DefaultText", &C::DefaultText, &C::SetDefaultText, ""),
      KeptProperty("Text", &C::Text, &C::SetText, [](const C& control) { return control.DefaultText(); }),
  };
  return table;
}

void UserTextNumber::SetEnabled(bool enabled) {
  Enable(enabled);
  PropertyChanged();
}

void UserTextNumber::SetBackColor(ControlColour colour) {
  backColor_ = colour;
  // Without a colour of its own the box is as the desktop's theme draws boxes.
  Box().SetBackgroundColour(colour == kWindowColour ? wxNullColour : colour.Resolve());
  Box().SetForegroundColour(TextColourOn(colour, kWindowTextColour));
  Box().Refresh();
  PropertyChanged();
}

void UserTextNumber::SetMinValue(std::int32_t value) {
  spin_.SetMinimum(value);
  PropertyChanged();
}

void UserTextNumber::SetMaxValue(std::int32_t value) {
  spin_.SetMaximum(value);
  PropertyChanged();
}

void UserTextNumber::SetIncrement(std::int32_t increment) {
  increment_ = increment;
  PropertyChanged();
}

void UserTextNumber::SetDisplayFormat(const wxString& picture) try {
  picture_ = NumberPicture(picture);
  PropertyChanged();
} catch (...) {
  mindloft::Raise(kName, "DisplayFormat");
}

void UserTextNumber::SetDisplayUpDownArrow(bool shown) {
  displayUpDownArrow_ = shown;
  ShowArrows(shown);
  PropertyChanged();
}

void UserTextNumber::SetBorderStyle(std::int16_t style) try {
  RefuseOutside(style, 1);
  borderStyle_ = style;
  ApplyBoxStyle();
  PropertyChanged();
} catch (...) {
  mindloft::Raise(kName, "BorderStyle");
}

void UserTextNumber::SetAlignment(std::int16_t alignment) try {
  RefuseOutside(alignment, 2);
  alignment_ = alignment;
  ApplyBoxStyle();
  PropertyChanged();
} catch (...) {
  mindloft::Raise(kName, "Alignment");
}

void UserTextNumber::ApplyBoxStyle() {
  constexpr long Alignments[] = {wxTE_LEFT, wxTE_RIGHT, wxTE_CENTRE};
  SetBoxStyle(Alignments[alignment_] | (borderStyle_ == 0 ? wxBORDER_NONE : 0));
}

bool UserTextNumber::Locked() const {
  return !Box().IsEditable();
}

void UserTextNumber::SetLocked(bool locked) {
  Box().SetEditable(!locked);
  PropertyChanged();
}

void UserTextNumber::SetDefaultText(const wxString& text) {
  defaultText_ = text;
  PropertyChanged();
}

wxString UserTextNumber::Text() const {
  return Box().GetValue();
}

void UserTextNumber::SetText(const wxString& text) try {
  if (TextVerify(text)) verifiedText_ = text;
  PropertyChanged();
  if (text == Box().GetValue()) return;
  Box().ChangeValue(text);
  RaiseChange();
} catch (...) {
  mindloft::Raise(kName, "Text");
}

long UserTextNumber::SelStart() const {
  long start = 0;
  long end = 0;
  Box().GetSelection(&start, &end);
  return start;
}

void UserTextNumber::SetSelStart(long start) {
  Box().SetInsertionPoint(std::clamp(start, 0L, Box().GetLastPosition()));
}

long UserTextNumber::Sellength() const {
  long start = 0;
  long end = 0;
  Box().GetSelection(&start, &end);
  return end - start;
}

void UserTextNumber::SetSellength(long length) {
  const long start = SelStart();
  Box().SetSelection(start, start + std::clamp(length, 0L, Box().GetLastPosition() - start));
}

bool UserTextNumber::TextVerify(const wxString& text) const try {
  if (GetStringHelper().IsBlank(text)) return true;
  const auto number = picture_.Read(text);
  if (!number || std::fabs(*number) > FLT_MAX) return false;
  return RoundToWhole(static_cast<float>(*number)).has_value();
} catch (...) {
  mindloft::Raise(kName, "TextVerify");
}

void UserTextNumber::FilterTyped(int& keyAscii) {
  FilterKey("1234567890\b-\r", keyAscii, true);
}

void UserTextNumber::OnArrowKey(bool up) {
  spin_.SetValue(TextValue());
  try {
    spin_.Step(up, increment_);
  } catch (const Error&) {
    // The value stays where it was.
  }
  UpDown1_Change();
}

void UserTextNumber::OnArrowPressed(bool up) {
  OnArrowKey(up);
}

void UserTextNumber::OnTextChanged() {
  RaiseChange();
}

void UserTextNumber::UpDown1_Change() {
  if (GetStringHelper().IsBlank(Text())) SetText(NumberText(spin_.Minimum()));
  SetText(picture_.Format(spin_.Value()));
  Box().SetInsertionPointEnd();
}

std::int32_t UserTextNumber::TextValue() const {
  const auto number = picture_.Read(Text());
  if (!number) return spin_.Minimum();
  return WholePart(std::nearbyint(*number));
}

void UserTextNumber::OnLeave() {
  const long caret = Box().GetInsertionPoint();
  SetText(TextVerify(Text()) ? NarrowText(Text()) : verifiedText_);
  Box().SetInsertionPoint(std::min(caret, Box().GetLastPosition()));
}

}  // namespace mindloft
