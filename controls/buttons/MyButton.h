#pragma once

#include <wx/bitmap.h>
#include <wx/control.h>
#include <wx/timer.h>

#include <cstdint>
#include <functional>

#include "controls/bag/BagControl.h"
#include "controls/bag/FontText.h"
#include "controls/buttons/ButtonLook.h"
#include "platform/ui/AccessibleButton.h"
#include "platform/ui/WindowHelpers.h"

namespace mindloft {

/// A push button drawn by itself, with pictures, sounds and a link.
///
/// It clicks when it is pressed, not when it is released, and a double-click is a second press. The button's
/// access keys click it from anywhere in its form; so do Enter when it is the form's default item, and Esc
/// when it has the dialog's escape id.
///
/// Wherever a property is "not 0", 0 is off and every other number on.
class MyButton : public wxControl, public BagControl<MyButton>, private platform::AccessibleButton {
  wxDECLARE_DYNAMIC_CLASS(MyButton);

 public:
  MyButton();  ///< for XRC; Create follows
  explicit MyButton(wxWindow* parent, const wxString& name = "MyButton");
  bool Create(wxWindow* parent, wxWindowID id = wxID_ANY, const wxPoint& position = wxDefaultPosition,
              const wxSize& size = wxDefaultSize, long style = 0, const wxString& name = "MyButton");

  static const PropertyTable<MyButton>& Properties();

  // Kept properties, in their order.
  ControlColour BackColor() const { return look_.backColor; }  ///< the face
  void SetBackColor(ControlColour colour);
  ControlColour ForeColor() const { return look_.foreColor; }  ///< the caption
  void SetForeColor(ControlColour colour);
  bool ShowFocusRect() const { return look_.showFocusRect; }
  void SetShowFocusRect(bool show);
  bool ShowBorderOnFocus() const { return look_.showBorderOnFocus; }  ///< the dark border of a default button
  void SetShowBorderOnFocus(bool show);
  const wxString& Caption() const { return look_.caption; }  ///< "&" marks an access key; at first the name
  void SetCaption(const wxString& caption);
  std::int16_t PicturePosition() const { return look_.picturePosition; }  ///< see ButtonLook.h
  void SetPicturePosition(std::int16_t position);
  const ControlPicture& Picture() const { return look_.picture; }
  void SetPicture(const ControlPicture& picture);
  std::int16_t PictureWidth() const { return look_.pictureWidth; }  ///< in pixels at 96 dpi, as the height
  void SetPictureWidth(std::int16_t width);
  std::int16_t PictureHeight() const { return look_.pictureHeight; }
  void SetPictureHeight(std::int16_t height);
  std::int16_t PictureSize() const { return look_.pictureSize; }  ///< see ButtonLook.h
  void SetPictureSize(std::int16_t size);
  const ControlPicture& PictureHover() const { return look_.pictureHover; }  ///< while the pointer is over it
  void SetPictureHover(const ControlPicture& picture);
  const ControlPicture& MouseIcon() const { return mouseIcon_; }  ///< the pointer, when MousePointer is 99
  void SetMouseIcon(const ControlPicture& picture);
  /// 0: the form's pointer, 1 arrow, 2 cross, 3 text, 5 and 15 all directions, 6 to 9 the directions NE-SW,
  /// N-S, NW-SE and W-E, 10 up, 11 busy, 12 forbidden, 13 busy arrow, 14 help, 99 MouseIcon.
  std::int16_t MousePointer() const { return mousePointer_; }
  void SetMousePointer(std::int16_t pointer);
  bool Enabled() const { return IsThisEnabled(); }
  void SetEnabled(bool enabled);
  std::int16_t RAISED() const { return look_.raised; }  ///< not 0: raised when idle; kept as "Raised"
  void SetRAISED(std::int16_t raised);
  std::int16_t BorderEdged() const { return look_.borderEdged; }  ///< not 0: a border in BorderEdgedColor
  void SetBorderEdged(std::int16_t edged);
  ControlColour BorderEdgedColor() const { return look_.borderEdgedColor; }
  void SetBorderEdgedColor(ControlColour colour);
  const wxString& URL() const { return url_; }  ///< opened by a click
  void SetURL(const wxString& url);
  std::int16_t XPStyle() const { return look_.xpStyle; }  ///< not 0: flat, filled while hovered or pressed
  void SetXPStyle(std::int16_t style);
  ControlColour XPColor_Pressed() const { return look_.xpColorPressed; }
  void SetXPColor_Pressed(ControlColour colour);
  ControlColour XPColor_Hover() const { return look_.xpColorHover; }
  void SetXPColor_Hover(ControlColour colour);
  /// Not 0: the system's 3-D highlight and 3-D light stand for the two colours above.
  std::int16_t XPDefaultColors() const { return look_.xpDefaultColors; }
  void SetXPDefaultColors(std::int16_t useDefaults);
  const wxString& SoundOver() const { return soundOver_; }  ///< see platform/ui/Sound.h for a relative name
  void SetSoundOver(const wxString& file);
  const wxString& SoundClick() const { return soundClick_; }
  void SetSoundClick(const wxString& file);
  bool Locked() const { return locked_; }  ///< looks enabled, but takes no mouse and no keys
  void SetLocked(bool locked);

  /// The font of the caption; the container's unless another is set.
  wxFont Font() const { return GetFont(); }
  bool SetFont(const wxFont& font) override;

  // Not kept.
  std::int16_t CaptionPosition() const { return look_.captionPosition; }  ///< see ButtonLook.h
  void SetCaptionPosition(std::int16_t position);
  wxString version() const;
  platform::WindowHandle hWnd() const;
  const wxBitmap& picBuffer() const { return picBuffer_; }  ///< the face as it was drawn last

  /// Makes it the form's default button.
  void SetDefault();
  /// Plays a wave file without waiting; false when nothing is played.
  static bool PlayASound(const wxString& file);
  /// Opens the URL, if there is one; a message tells when that fails.
  void GoToURL();
  /// Opens the address with the system's shell; false when nothing could be started.
  static bool Navigate(wxWindow* form, const wxString& address);
  /// The colour's bytes. RgbText holds them as "RGB(1, 2, 3)" until the next call.
  struct Rgb {
    int red, green, blue;
  };
  Rgb ConvertRGB(ControlColour colour);
  const wxString& RgbText() const { return rgbText_; }
  /// Takes the access keys from the caption; a new caption does so by itself.
  void SetAccessKeys();
  const wxString& AccessKeys() const { return accessKeys_; }  ///< upper case

  // Events; each may be empty. `button` is 1 for the left, 2 for the right and 4 for the middle one (their
  // sum for a state), `shift` is ShiftState's, places are pixels of the button, key codes and characters
  // those of ControlKeys.h. Exceptions of a handler are shown, never thrown into the toolkit. A handler may
  // destroy the button.
  std::function<void()> Click;
  std::function<void(int& keyCode, int shift)> KeyDown;
  std::function<void(int& keyAscii)> KeyPress;
  std::function<void(int& keyCode, int shift)> KeyUp;
  std::function<void(int button, int shift, int x, int y)> MouseDown;
  std::function<void(int button, int shift, int x, int y)> MouseMove;
  std::function<void(int button, int shift, int x, int y)> MouseUp;
  std::function<void(std::int16_t button)> MouseEnter;
  std::function<void(std::int16_t button)> MouseLeave;

  // The toolkit's own, kept in step with the properties.
  void SetLabel(const wxString& label) override { SetCaption(label); }
  void SetLayoutDirection(wxLayoutDirection direction) override;
  bool Reparent(wxWindowBase* parent) override;
  void OnInternalIdle() override;

 protected:
  /// How it is drawn now. A page that shows buttons in every state overrides it.
  virtual ButtonState FaceState() const;
  wxSize DoGetBestClientSize() const override;
  void DoEnable(bool enable) override;

 private:
  template <typename Value>
  void Put(Value& place, const Value& value);  ///< a property that only the picture shows
  template <typename Value>
  void PutSizing(Value& place, const Value& value);  ///< one that changes the best size, too
  wxFont KeptFont() const;
  void SetKeptFont(const wxFont& font);
  void ShowPointer();

  void BindEvents();
  void BindFormKeys();
  void OnPaint(wxPaintEvent& event);
  void OnFocus(wxFocusEvent& event);
  void RedrawNow();
  bool IsFormDefault() const;

  void OnMotion(wxMouseEvent& event);
  void OnButtonDown(wxMouseEvent& event);
  void OnButtonTwice(wxMouseEvent& event);
  void OnButtonUp(wxMouseEvent& event);
  void UserControl_MouseMove(int button, int shift, const wxPoint& at);
  void UserControl_MouseDown(int button, int shift, const wxPoint& at);
  void UserControl_MouseUp(int button, int shift, const wxPoint& at);
  void OverTimer_Timer();
  bool IsInside(const wxPoint& at) const;
  bool IsPointerOver() const;
  void EndHover();

  void OnKeyDown(wxKeyEvent& event);
  void OnChar(wxKeyEvent& event);
  void OnKeyUp(wxKeyEvent& event);
  void OnFormKey(wxKeyEvent& event);
  bool IsFormsKey(const wxKeyEvent& event) const;
  void UserControl_AccessKeyPress();

  /// Raises Click, then opens the URL. False when the button is no more.
  bool RaiseClick();

  wxString AccessibleName() const override;
  wxString AccessibleShortcut() const override;
  wxString AccessibleAction() const override;
  bool IsAccessiblyPressed() const override { return pressed_; }
  bool IsAccessiblyHovered() const override { return hovering_; }
  bool IsAccessiblyDefault() const override { return IsFormDefault(); }
  void PressAccessibly() override;

  ButtonLook look_;
  ControlPicture mouseIcon_;
  std::int16_t mousePointer_ = 0;
  wxString url_;
  wxString soundOver_;
  wxString soundClick_;
  bool locked_ = false;
  wxString accessKeys_;
  wxString rgbText_;

  bool pressed_ = false;
  bool hovering_ = false;
  bool pointerLeft_ = false;   ///< it is over another program's window in front of this one
  bool keyHeld_ = false;       ///< Enter or Space has clicked and is not released yet
  bool soundOverDue_ = false;  ///< to be played when nothing else is pending
  bool drawnAsDefault_ = false;
  bool mirrored_ = false;
  int lastButton_ = 0;
  int lastShift_ = 0;
  wxPoint lastPlace_;
  wxTimer overTimer_;
  wxBitmap picBuffer_;
};

}  // namespace mindloft
