#pragma once

#include <wx/compositewin.h>
#include <wx/panel.h>

#include <memory>

#include "backend/corvane/User.h"
#include "controls/bag/BagControl.h"
#include "controls/bag/ControlColour.h"
#include "controls/texts/EditBox.h"
#include "controls/texts/TextBoxEvents.h"

namespace mindloft {

/// Shows the name of a user (`txtUser`). With `DisplayUser` a double click, or Space, opens the user's
/// editor; the name is shown anew when it has been closed. Else a double click raises DblClick.
class UserText : public wxCompositeWindowSettersOnly<wxPanel>,
                 public BagControl<UserText>,
                 public TextBoxEvents {
 public:
  UserText() = default;  ///< for XRC; Create follows
  explicit UserText(wxWindow* parent, const wxString& name = "UserText");
  void Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
              const wxString& name);

  static const PropertyTable<UserText>& Properties();

  /// The user that is shown; nothing when there is none.
  std::shared_ptr<Corvane::User> User() const { return user_; }
  void SetUser(std::shared_ptr<Corvane::User> user);
  void EmptyUser();

  bool DisplayUser() const { return displayUser_; }
  void SetDisplayUser(bool displayUser);
  bool Locked() const { return !txtUser->IsEditable(); }
  void SetLocked(bool locked);
  /// A line around the box in FrameColor.
  bool HasFrame() const { return hasFrame_; }
  void SetHasFrame(bool hasFrame);
  /// The line looks sunken: its right and lower sides are lighter.
  bool Frame2000() const { return frame2000_; }
  void SetFrame2000(bool frame2000);
  ControlColour FrameColor() const { return frameColor_; }
  void SetFrameColor(ControlColour colour);
  wxString Text() const { return txtUser->GetValue(); }
  void SetText(const wxString& text);
  bool Enabled() const { return IsThisEnabled(); }
  void SetEnabled(bool enabled);
  bool FontUnderline() const;
  void SetFontUnderline(bool underlined);
  /// 0: left, 1: right, 2: in the middle. Throws Overflow for another one.
  std::int16_t Alignment() const { return alignment_; }
  void SetAlignment(std::int16_t alignment);
  ControlColour BackColor() const { return backColor_; }
  void SetBackColor(ControlColour colour);

  // Not kept.
  wxString FontName() const;
  void SetFontName(const wxString& name);
  bool FontBold() const;
  void SetFontBold(bool bold);
  /// Points.
  double FontSize() const;
  void SetFontSize(double points);
  bool FontItalic() const;
  void SetFontItalic(bool italic);
  ControlColour ForeColor() const { return foreColor_; }
  void SetForeColor(ControlColour colour);

  /// Takes the caption for this control of its form anew: shown in the box while it is empty.
  void LoadInfoOnControl();
  void SetLabel(const wxString& caption) override;

 protected:
  wxSize DoGetBestClientSize() const override;
  void DoEnable(bool enable) override;
  wxWindowList GetCompositeWindowParts() const override;

 private:
  template <typename Procedure>
  void SetProperty(const char* property, Procedure procedure);
  /// `style` is the box's alignment. A box that is there already is replaced, with its text and state.
  void MakeBox(long style);
  void BindBox();
  /// Whether a double click is the control's own matter.
  bool OpenUser();
  void UserControl_Resize();
  void UserControl_Paint();
  void ApplyColours();
  int FrameWidth() const;

  EditBox* txtUser = nullptr;
  std::shared_ptr<Corvane::User> user_;
  bool displayUser_ = false;
  bool hasFrame_ = false;
  bool frame2000_ = false;
  std::int16_t alignment_ = 0;
  ControlColour frameColor_ = kButtonShadowColour;
  ControlColour backColor_ = kButtonFaceColour;
  ControlColour foreColor_ = kWindowTextColour;
};

}  // namespace mindloft
