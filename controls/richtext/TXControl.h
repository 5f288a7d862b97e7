#pragma once

#include "controls/richtext/RichTextControl.h"

namespace mindloft {

/// The rich-text editor whose button bar can be hidden, and in which all can be selected at once.
class TXControl : public BagControl<TXControl, RichTextControl> {
 public:
  TXControl() : BagControl("TXControl") {}  ///< for XRC; Create follows
  explicit TXControl(wxWindow* parent, const wxString& name = "TXControl");
  void Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
              const wxString& name);

  static const PropertyTable<TXControl>& Properties();

  bool ButtonBarVisible() const { return isButtonBarVisible_; }
  void SetButtonBarVisible(bool visible);
  void SelectAll();

 protected:
  bool IsButtonBarVisible() const override { return isButtonBarVisible_; }

 private:
  bool isButtonBarVisible_ = true;
};

}  // namespace mindloft
