#pragma once

#include "controls/texts/FramedTextBox.h"

namespace mindloft {

/// A text box of many lines, with or without a vertical scroll bar. Enter begins a new line, Tab leaves the
/// box, Ctrl+Tab puts a tabulator. It has a filter for digits but tells no KeyPress.
class UseMultiLineTextBox : public BagControl<UseMultiLineTextBox, FramedTextBox> {
 public:
  UseMultiLineTextBox() : BagControl("UseMultiLineTextBox") {}  ///< for XRC; Create follows
  explicit UseMultiLineTextBox(wxWindow* parent, const wxString& name = "UseMultiLineTextBox");
  void Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
              const wxString& name);

  static const PropertyTable<UseMultiLineTextBox>& Properties();

  /// Which of the two boxes is shown; text, selection and focus go from one to the other.
  bool VerScrollBars() const { return verScrollBars_; }
  void SetVerScrollBars(bool scrollBars);
  bool TabStop() const { return tabStop_; }
  void SetTabStop(bool tabStop);

 protected:
  EditBox& ActiveBox() const override { return verScrollBars_ ? *MyText : *txtNoScrollbar; }

 private:
  EditBox* txtNoScrollbar = nullptr;
  bool verScrollBars_ = true;
  bool tabStop_ = true;
};

}  // namespace mindloft
