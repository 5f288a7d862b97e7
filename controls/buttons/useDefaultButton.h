#pragma once

#include <wx/panel.h>

#include <cstdint>
#include <functional>

#include "controls/bag/BagControl.h"
#include "controls/bag/FontText.h"

class wxButton;
class wxTextCtrl;

namespace mindloft {

/// The default button of its dialog that leaves the Enter key to a box of several lines: pressed while the
/// focus is in one, it breaks the line there instead of clicking.
class useDefaultButton : public wxPanel, public BagControl<useDefaultButton> {
  wxDECLARE_DYNAMIC_CLASS(useDefaultButton);

 public:
  useDefaultButton();  ///< for XRC; Create follows
  explicit useDefaultButton(wxWindow* parent, const wxString& name = "useDefaultButton");
  bool Create(wxWindow* parent, wxWindowID id = wxID_ANY, const wxPoint& position = wxDefaultPosition,
              const wxSize& size = wxDefaultSize, long style = 0, const wxString& name = "useDefaultButton");

  static const PropertyTable<useDefaultButton>& Properties();

  // Kept properties, in their order.
  ControlColour BackColor() const {
    return backColor_;
  }  ///< the system's button face: as the desktop draws buttons
  void SetBackColor(ControlColour colour);
  bool Enabled() const { return IsThisEnabled(); }
  void SetEnabled(bool enabled);
  ControlColour ForeColor() const { return foreColor_; }
  void SetForeColor(ControlColour colour);
  wxString Caption() const;  ///< at first the control's name
  void SetCaption(const wxString& caption);
  std::int16_t BorderStyle() const { return borderStyle_; }  ///< 0: none, 1: a line around the button
  void SetBorderStyle(std::int16_t style);
  std::int16_t Appearance() const { return appearance_; }  ///< of that line, 0: flat, 1: sunken
  void SetAppearance(std::int16_t appearance);
  std::int16_t BackStyle() const {
    return backStyle_;
  }  ///< 0: the container shows around the button, 1: BackColor
  void SetBackStyle(std::int16_t style);

  /// The font of the caption; the container's unless another is set.
  wxFont Font() const { return GetFont(); }
  bool SetFont(const wxFont& font) override;

  wxButton& Command1() const { return *command1_; }

  // Events; each may be empty. As MyButton's.
  std::function<void()> Click;
  std::function<void(int& keyCode, int shift)> KeyDown;
  std::function<void(int& keyAscii)> KeyPress;
  std::function<void(int& keyCode, int shift)> KeyUp;
  std::function<void(int button, int shift, int x, int y)> MouseDown;
  std::function<void(int button, int shift, int x, int y)> MouseMove;
  std::function<void(int button, int shift, int x, int y)> MouseUp;

  void SetLabel(const wxString& label) override { SetCaption(label); }
  wxString GetLabel() const override { return Caption(); }
  bool Reparent(wxWindowBase* parent) override;

 private:
  void BindEvents();
  void BindFormKeys();
  void OnFormKey(wxKeyEvent& event);
  void Command1_Click();
  void OnPaint(wxPaintEvent& event);
  void ShowColours();
  void ShowBorder();
  wxFont KeptFont() const;
  void SetKeptFont(const wxFont& font);

  wxButton* command1_ = nullptr;
  ControlColour backColor_ = kButtonFaceColour;
  ControlColour foreColor_ = kButtonTextColour;
  std::int16_t borderStyle_ = 0;
  std::int16_t appearance_ = 1;
  std::int16_t backStyle_ = 1;
};

}  // namespace mindloft
