#pragma once

#include <cstdint>
#include <optional>

#include "controls/bag/BagControl.h"
#include "controls/numbers/NumberPicture.h"
#include "controls/numbers/SpinValue.h"
#include "controls/numbers/SpunBox.h"

namespace mindloft {

/// A box for a number with decimals (`MaskEdBox`) and a spinner (`UpDown`). The box holds a number at all
/// times; it is brought into the range, and into its format, when the box is left.
///
/// The spinner's value is the whole part of the number, its decimals cut off downwards (-0.5 gives -1), so
/// that a step of the spinner and one of the number stay together. A press of an arrow with the mouse moves
/// the spinner from the number in the box, and the box follows; an arrow key moves the box, and the spinner
/// follows. `Change` is raised once for every other content but the one that leaving the box makes.
class ucMaskedNumber : public SpunBox, public BagControl<ucMaskedNumber> {
 public:
  ucMaskedNumber() = default;  ///< for XRC; Create follows
  explicit ucMaskedNumber(wxWindow* parent, const wxString& name = "ucMaskedNumber");
  bool Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
              const wxString& name);
  static const PropertyTable<ucMaskedNumber>& Properties();
  void ReadProperties(const PropertyBag& bag) override;

  /// Whether the minus sign is refused. Decimals are DecimalDigits' business.
  bool WholeNumber() const { return wholeNumber_; }
  void SetWholeNumber(bool whole);
  std::int32_t MinValue() const { return spin_.Minimum(); }
  void SetMinValue(std::int32_t value);
  std::int32_t MaxValue() const { return spin_.Maximum(); }
  void SetMaxValue(std::int32_t value);
  std::int32_t Increment() const { return increment_; }
  void SetIncrement(std::int32_t increment);
  /// Below 1 the decimal point is refused. How many are shown is the format's business.
  std::int16_t DecimalDigits() const { return decimalDigits_; }
  void SetDecimalDigits(std::int16_t digits);
  wxString Text() const;
  /// A text that is no number changes nothing; a blank one counts as "0".
  void SetText(const wxString& text);
  /// A NumberPicture; a blank one leaves the box's format as it was.
  wxString DisplayFormat() const { return displayFormat_; }
  void SetDisplayFormat(const wxString& picture);
  bool DisplayUpDown() const { return displayUpDown_; }
  void SetDisplayUpDown(bool shown);
  /// Of the box and the spinner.
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

  /// How many units of the number make one that is shown and typed: with 10 a box of tenths of a millimetre
  /// shows millimetres. The range, the increment and the value count the number's units, `Text` is what is
  /// shown. Not among the kept properties: 1 until the form sets it, before the properties that depend on it.
  std::int32_t UnitsPerShown() const { return unitsPerShown_; }
  void SetUnitsPerShown(std::int32_t units);
  /// The number in the box to the nearest unit, halves away from zero; `MinValue` when there is none.
  std::int32_t Value() const;
  /// Shows the number in the box's format, even one outside the range; `Change` is raised for another one.
  void SetValue(std::int32_t value);
  /// Brings the number into the range and its format, without `Change`: what leaving the box does.
  void MaskEdBox_Validate();
  /// Selects the whole text and puts the focus into the box.
  void SelectAll();

  /// The number in the box (`MinValue` when there is none) brought into the range and formatted. The box
  /// stays as it is.
  wxString FormatText() const;
  /// True exactly for a number, plain or in the box's format.
  bool TextVerify(const wxString& text) const;

 private:
  void FilterTyped(int& keyAscii) override;
  void OnArrowKey(bool up) override;
  void OnArrowPressed(bool up) override;
  void OnTextChanged() override;
  void OnLeave() override;

  void LoadText(const wxString& text);
  void UpDown_UpClick();
  void UpDown_DownClick();
  void UpDown_Change();
  void AfterClick();
  void TakeBackInvalidText();
  void PlaceCaret(long position);
  void Rewrite(const wxString& text);
  wxString Clamped(double number) const;
  double Number() const;
  std::optional<double> Read(const wxString& text) const;
  wxString ShownText(double number) const;

  SpinValue spin_;
  NumberPicture format_;
  wxString displayFormat_;
  wxString textBefore_;  ///< before the last keystroke, or what the program has put in since
  std::int32_t increment_ = 1;
  std::int32_t unitsPerShown_ = 1;
  std::int16_t decimalDigits_ = 2;
  bool wholeNumber_ = false;
  bool displayUpDown_ = true;
  bool enabled_ = true;
  bool validating_ = false;
};

}  // namespace mindloft
