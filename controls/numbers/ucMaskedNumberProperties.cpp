#include <wx/textctrl.h>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/StringHelper.h"
#include "backend/tessaline/Text.h"
#include "controls/bag/PropertyTable.h"
#include "controls/numbers/NumberText.h"
#include "controls/numbers/ucMaskedNumber.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr const char* kName = "ucMaskedNumber";

}  // namespace

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
  const auto number = GetStringHelper().IsBlank(text) ? 0.0 : Read(text);
  if (!number) throw Error(ErrorNumber::TypeMismatch, "\"" + ToUtf8(text) + "\" is no number");
  Rewrite(Clamped(*number));
  spin_.SetValue(WholePart(Number()));
} catch (...) {
  mindloft::Raise(kName, "Text");
}

void ucMaskedNumber::SetDisplayFormat(const wxString& picture) try {
  displayFormat_ = picture;
  if (!GetStringHelper().IsBlank(picture)) format_ = NumberPicture(picture);
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

void ucMaskedNumber::SetUnitsPerShown(std::int32_t units) try {
  if (units < 1) throw Error(ErrorNumber::Overflow, "no units in what is shown");
  const double number = Number();
  unitsPerShown_ = units;
  Rewrite(ShownText(number));
} catch (...) {
  mindloft::Raise(kName, "UnitsPerShown");
}

}  // namespace mindloft
