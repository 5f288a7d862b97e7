#include "controls/numbers/ucMaskedNumber.h"

#include <wx/textctrl.h>

#include <algorithm>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/StringHelper.h"
#include "backend/tessaline/Text.h"
#include "controls/bag/PropertyTable.h"
#include "controls/numbers/FilterKey.h"
#include "controls/numbers/NumberText.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr const char* kName = "ucMaskedNumber";

bool IsBlank(const wxString& text) {
  return GetStringHelper().IsBlank(text);
}

/// Behind what was put into a text. Where the caret stands while the toolkit tells of a change depends on the
/// desktop.
long EndOfInsertion(const wxString& before, const wxString& after) {
  std::size_t same = 0;
  const std::size_t most = std::min(before.length(), after.length());
  while (same < most && before[before.length() - 1 - same] == after[after.length() - 1 - same]) ++same;
  return static_cast<long>(after.length() - same);
}

}  // namespace

ucMaskedNumber::ucMaskedNumber(wxWindow* parent, const wxString& name) {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

bool ucMaskedNumber::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                            long style, const wxString& name) {
  constexpr std::int32_t UsualMaximum = 10;
  spin_.SetMaximum(UsualMaximum);
  if (!CreateParts(parent, id, position, size, style, name, "MaskEdBox", "UpDown")) return false;
  Rewrite("0");
  return true;
}

const PropertyTable<ucMaskedNumber>& ucMaskedNumber::Properties() {
  using C = ucMaskedNumber;
  // The text is brought into the range and the format, so these are read before it.
  static const PropertyTable<C> table{
      KeptProperty("WholeNumber", &C::WholeNumber, &C::SetWholeNumber, false),
      KeptProperty("MinValue", &C::MinValue, &C::SetMinValue, 0),
      KeptProperty("MaxValue", &C::MaxValue, &C::SetMaxValue, 10),
      KeptProperty("Increment", &C::Increment, &C::SetIncrement, 1),
      KeptProperty("DecimalDigits", &C::DecimalDigits, &C::SetDecimalDigits, 2),
      KeptProperty("DisplayFormat", &C::DisplayFormat, &C::SetDisplayFormat, ""),
      KeptProperty("Text", &C::Text, &C::LoadText, "0"),
      KeptProperty("DisplayUpDown", &C::DisplayUpDown, &C::SetDisplayUpDown, true),
      KeptProperty("Enabled", &C::Enabled, &C::SetEnabled, true),
  };
  return table;
}

void ucMaskedNumber::ReadProperties(const PropertyBag& bag) {
  format_ = NumberPicture();
  BagControl::ReadProperties(bag);
}

void ucMaskedNumber::SetWholeNumber(bool whole) {
  wholeNumber_ = whole;
  PropertyChanged();
}

void ucMaskedNumber::SetMinValue(std::int32_t value) {
  spin_.SetMinimum(value);
  PropertyChanged();
}

void ucMaskedNumber::SetMaxValue(std::int32_t value) {
  spin_.SetMaximum(value);
  PropertyChanged();
}

void ucMaskedNumber::SetIncrement(std::int32_t increment) {
  increment_ = increment;
  PropertyChanged();
}

void ucMaskedNumber::SetDecimalDigits(std::int16_t digits) {
  decimalDigits_ = digits;
  PropertyChanged();
}

wxString ucMaskedNumber::Text() const {
  return Box().GetValue();
}

void ucMaskedNumber::SetText(const wxString& text) try {
  PropertyChanged();
  if (text != Box().GetValue()) {
    Box().ChangeValue(text);
    OnTextChanged();
  }
  textBefore_ = Box().GetValue();
} catch (...) {
  mindloft::Raise(kName, "Text");
}

void ucMaskedNumber::LoadText(const wxString& text) try {
  const auto number = IsBlank(text) ? 0.0 : format_.Read(text);
  if (!number) throw Error(ErrorNumber::TypeMismatch, "\"" + ToUtf8(text) + "\" is no number");
  Rewrite(Clamped(*number));
  spin_.SetValue(WholePart(Number()));
} catch (...) {
  mindloft::Raise(kName, "Text");
}

void ucMaskedNumber::SetDisplayFormat(const wxString& picture) try {
  displayFormat_ = picture;
  if (!IsBlank(picture)) format_ = NumberPicture(picture);
  PropertyChanged();
} catch (...) {
  mindloft::Raise(kName, "DisplayFormat");
}

void ucMaskedNumber::SetDisplayUpDown(bool shown) {
  displayUpDown_ = shown;
  ShowArrows(shown);
  PropertyChanged();
}

void ucMaskedNumber::SetEnabled(bool enabled) {
  enabled_ = enabled;
  Box().Enable(enabled);
  Arrows().Enable(enabled);
  PropertyChanged();
}

wxString ucMaskedNumber::FormatText() const try { return Clamped(Number()); } catch (...) {
  mindloft::Raise(kName, "FormatText");
}

bool ucMaskedNumber::TextVerify(const wxString& text) const try {
  return format_.Read(text).has_value();
} catch (...) {
  mindloft::Raise(kName, "TextVerify");
}

double ucMaskedNumber::Number() const {
  return format_.Read(Text()).value_or(spin_.Minimum());
}

wxString ucMaskedNumber::Clamped(double number) const {
  double clamped = number < MinValue() ? MinValue() : number;
  if (number > MaxValue()) clamped = MaxValue();
  return format_.Format(clamped);
}

void ucMaskedNumber::Rewrite(const wxString& text) {
  Box().ChangeValue(text);
  textBefore_ = text;
}

void ucMaskedNumber::FilterTyped(int& keyAscii) {
  wxString allowed = "1234567890\b,";
  if (decimalDigits_ >= 1) allowed += '.';
  // Ctrl+V, Ctrl+X and Ctrl+Z, but not Ctrl+C: the keyboard does not copy.
  allowed += "\x16\x18\x1A";
  if (!wholeNumber_) allowed += '-';
  FilterKey(allowed, keyAscii, true);
  textBefore_ = Text();
}

void ucMaskedNumber::OnArrowKey(bool up) {
  if (up)
    UpDown_UpClick();
  else
    UpDown_DownClick();
}

void ucMaskedNumber::OnArrowPressed(bool up) {
  spin_.SetValue(WholePart(Number()));
  if (Arrows().IsMouseDown()) {
    const std::int32_t before = spin_.Value();
    try {
      spin_.Step(up, increment_);
    } catch (const Error&) {
      // The spinner stays where it was.
    }
    if (spin_.Value() != before) {
      UpDown_Change();
      return;
    }
  }
  OnArrowKey(up);
}

void ucMaskedNumber::UpDown_Change() {
  if (!Arrows().IsMouseDown()) return;
  const std::int32_t whole = WholePart(Number());
  if (whole > spin_.Value() && spin_.Value() >= MinValue())
    UpDown_DownClick();
  else if (whole < spin_.Value() && spin_.Value() <= MaxValue())
    UpDown_UpClick();
}

void ucMaskedNumber::UpDown_UpClick() {
  if (spin_.Value() < MaxValue())
    SetText(format_.Format(Number() + increment_));
  else if (spin_.Value() == MaxValue())
    SetText(format_.Format(MaxValue()));
  AfterClick();
}

void ucMaskedNumber::UpDown_DownClick() {
  if (spin_.Value() > MinValue())
    SetText(format_.Format(Number() - increment_));
  else if (spin_.Value() == MinValue())
    SetText(format_.Format(MinValue()));
  AfterClick();
}

void ucMaskedNumber::AfterClick() {
  // The mouse moves the spinner itself.
  if (Arrows().IsMouseDown())
    Box().SetSelection(0, Box().GetLastPosition());
  else
    spin_.SetValue(WholePart(Number()));
}

void ucMaskedNumber::OnTextChanged() {
  if (IsBlank(Text())) {
    Box().ChangeValue("0");
    // What is typed next takes its place.
    Box().SetSelection(0, 1);
  }
  if (!TextVerify(Text())) TakeBackInvalidText();
  const bool silent = validating_;
  validating_ = false;
  if (!silent) RaiseChange();
}

void ucMaskedNumber::TakeBackInvalidText() {
  const wxString before = TextVerify(textBefore_) ? textBefore_ : wxString("0");
  const long caret = EndOfInsertion(before, Text());
  Box().ChangeValue(before);
  if (caret > 0) PlaceCaret(caret - 1);
}

void ucMaskedNumber::PlaceCaret(long position) {
  const auto place = [this, position] {
    Box().SetInsertionPoint(std::min(position, Box().GetLastPosition()));
  };
  place();
  // A desktop may place it behind what was typed when this is over.
  CallAfter([this, place, text = Text()] {
    Guarded(kName, "PlaceCaret", [&] {
      if (Text() == text) place();
    });
  });
}

void ucMaskedNumber::OnLeave() {
  MaskEdBox_Validate();
}

void ucMaskedNumber::MaskEdBox_Validate() {
  if (decimalDigits_ < 1) decimalDigits_ = 0;
  validating_ = true;
  const long caret = Box().GetInsertionPoint();
  const wxString clamped = Clamped(Number());
  if (clamped != Text()) Rewrite(clamped);
  spin_.SetValue(WholePart(Number()));
  const wxString formatted = format_.Format(Number());
  if (formatted != Text()) Rewrite(formatted);
  Box().SetInsertionPoint(std::min(caret, Box().GetLastPosition()));
  validating_ = false;
}

}  // namespace mindloft
