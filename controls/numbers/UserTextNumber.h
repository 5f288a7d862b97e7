#pragma once

#include <cstdint>

#include "controls/bag/BagControl.h"
#include "controls/bag/ControlColour.h"
#include "controls/numbers/NumberPicture.h"
#include "controls/numbers/SpinValue.h"
#include "controls/numbers/SpunBox.h"

namespace mindloft {

/// A box for a whole number (`Text1`) with a spinner (`UpDown1`).
///
/// Only the spinner keeps to the range; a number that is typed may lie outside. A press of an arrow starts
/// from the number in the box, or from `MinValue` when there is none; a number beyond the range counts as its
/// nearer end. Halves are rounded to the even number. `Change` is raised for every other content, whoever
/// made it.
class UserTextNumber : public SpunBox, public BagControl<UserTextNumber> {
 public:
  UserTextNumber() = default;  ///< for XRC; Create follows
  explicit UserTextNumber(wxWindow* parent, const wxString& name = "UserTextNumber");
  bool Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
              const wxString& name);
  static const PropertyTable<UserTextNumber>& Properties();

  bool Enabled() const { return IsThisEnabled(); }
  void SetEnabled(bool enabled);
  ControlColour BackColor() const { return backColor_; }
  void SetBackColor(ControlColour colour);
  std::int32_t MinValue() const { return spin_.Minimum(); }
  void SetMinValue(std::int32_t value);
  std::int32_t MaxValue() const { return spin_.Maximum(); }
  void SetMaxValue(std::int32_t value);
  std::int32_t Increment() const { return increment_; }
  void SetIncrement(std::int32_t increment);
  /// A NumberPicture.
  wxString DisplayFormat() const { return picture_.Text(); }
  void SetDisplayFormat(const wxString& picture);
  bool DisplayUpDownArrow() const { return displayUpDownArrow_; }
  void SetDisplayUpDownArrow(bool shown);
  /// 0: none, 1: the system's border.
  std::int16_t BorderStyle() const { return borderStyle_; }
  void SetBorderStyle(std::int16_t style);
  /// 0: left, 1: right, 2: centred.
  std::int16_t Alignment() const { return alignment_; }
  void SetAlignment(std::int16_t alignment);
  /// The box takes no typing; the spinner still works.
  bool Locked() const;
  void SetLocked(bool locked);
  wxString DefaultText() const { return defaultText_; }
  void SetDefaultText(const wxString& text);
  wxString Text() const;
  void SetText(const wxString& text);

  long SelStart() const;
  void SetSelStart(long start);
  long Sellength() const;
  void SetSellength(long length);

  /// True for a blank text and for one that a single-precision number and then a 32-bit integer can hold:
  /// numbers that round up to 2147483648 on the way cannot.
  bool TextVerify(const wxString& text) const;

 private:
  void FilterTyped(int& keyAscii) override;
  void OnArrowKey(bool up) override;
  void OnArrowPressed(bool up) override;
  void OnTextChanged() override;
  void OnLeave() override;
  void UpDown1_Change();
  std::int32_t TextValue() const;
  void ApplyBoxStyle();

  SpinValue spin_;
  NumberPicture picture_{"###0"};
  ControlColour backColor_ = kWindowColour;
  std::int32_t increment_ = 1;
  std::int16_t borderStyle_ = 1;
  std::int16_t alignment_ = 0;
  bool displayUpDownArrow_ = true;
  wxString defaultText_;
  wxString verifiedText_;  ///< what stands in the box again when it is left with something else
};

}  // namespace mindloft
