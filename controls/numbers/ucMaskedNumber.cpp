#include "controls/numbers/ucMaskedNumber.h"

#include <wx/textctrl.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/StringHelper.h"
#include "controls/numbers/FilterKey.h"
#include "controls/numbers/NumberText.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr const char* kName = "ucMaskedNumber";

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

wxString ucMaskedNumber::FormatText() const try { return Clamped(Number()); } catch (...) {
  mindloft::Raise(kName, "FormatText");
}

bool ucMaskedNumber::TextVerify(const wxString& text) const try {
  return Read(text).has_value();
} catch (...) {
  mindloft::Raise(kName, "TextVerify");
}

double ucMaskedNumber::Number() const {
  return Read(Text()).value_or(spin_.Minimum());
}

std::optional<double> ucMaskedNumber::Read(const wxString& text) const {
  auto number = format_.Read(text, decimalDigits_ < 1 ? LoneComma::Groups : LoneComma::Decimals);
  // As many decimals as there are units: without what the multiplication leaves behind them.
  if (number && unitsPerShown_ > 1) number = std::round(*number * unitsPerShown_);
  return number;
}

wxString ucMaskedNumber::ShownText(double number) const {
  return format_.Format(number / unitsPerShown_);
}

std::int32_t ucMaskedNumber::Value() const try {
  const double nearest = std::round(Number());
  constexpr double Least = std::numeric_limits<std::int32_t>::min();
  constexpr double Greatest = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::clamp(nearest, Least, Greatest));
} catch (...) {
  mindloft::Raise(kName, "Value");
}

void ucMaskedNumber::SetValue(std::int32_t value) {
  SetText(ShownText(value));
  spin_.SetValue(value);
}

void ucMaskedNumber::SelectAll() {
  Box().SetFocus();
  Box().SetSelection(0, Box().GetLastPosition());
}

wxString ucMaskedNumber::Clamped(double number) const {
  double clamped = number < MinValue() ? MinValue() : number;
  if (number > MaxValue()) clamped = MaxValue();
  return ShownText(clamped);
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
    SetText(ShownText(Number() + increment_));
  else if (spin_.Value() == MaxValue())
    SetText(ShownText(MaxValue()));
  AfterClick();
}

void ucMaskedNumber::UpDown_DownClick() {
  if (spin_.Value() > MinValue())
    SetText(ShownText(Number() - increment_));
  else if (spin_.Value() == MinValue())
    SetText(ShownText(MinValue()));
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
  if (GetStringHelper().IsBlank(Text())) {
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
  const wxString formatted = ShownText(Number());
  if (formatted != Text()) Rewrite(formatted);
  Box().SetInsertionPoint(std::min(caret, Box().GetLastPosition()));
  validating_ = false;
}

}  // namespace mindloft
