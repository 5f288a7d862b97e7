#pragma once

#include "controls/richtext/RichTextControl.h"

namespace mindloft {

/// The rich-text editor that gives and takes the selected text, and tells presses of the mouse.
class TextControl : public BagControl<TextControl, RichTextControl> {
 public:
  TextControl() : BagControl("TextControl") {}  ///< for XRC; Create follows
  explicit TextControl(wxWindow* parent, const wxString& name = "TextControl");
  void Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
              const wxString& name);

  static const PropertyTable<TextControl>& Properties();

  std::function<void(int button, int shift, int x, int y)> MouseDown;

  wxString SelText() const;
  /// Replaces the selection, as if it had been typed.
  void SetSelText(const wxString& text);

 protected:
  bool OnMouseDown(int button, int shift, int x, int y) override;
};

}  // namespace mindloft
