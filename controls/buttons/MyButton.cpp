#include "controls/buttons/MyButton.h"

#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/toplevel.h>

#include "backend/tessaline/Services.h"
#include "controls/buttons/ButtonCaption.h"
#include "controls/buttons/ButtonFace.h"

namespace mindloft {
namespace {

constexpr int kPress = 61561;  // the name of the action

/// Disabled by itself or with a part of its form. A form behind a modal one takes no input either, but looks
/// as always.
bool LooksEnabled(const wxWindow& window) {
  for (const wxWindow* each = &window; each && !each->IsTopLevel(); each = each->GetParent()) {
    if (!each->IsThisEnabled()) return false;
  }
  return true;
}

}  // namespace

wxIMPLEMENT_DYNAMIC_CLASS(MyButton, wxControl);

MyButton::MyButton() = default;

MyButton::MyButton(wxWindow* parent, const wxString& name) {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

bool MyButton::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                      long style, const wxString& name) {
  // All of the window is painted, so nothing is erased before: that would flicker.
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  const long used = (style & ~wxBORDER_MASK) | wxBORDER_NONE | wxWANTS_CHARS;
  if (!wxControl::Create(parent, id, position, size, used, wxDefaultValidator, name)) return false;
  SetLayoutDirection(parent->GetLayoutDirection());
  BindEvents();
  platform::PresentAsButton(*this, *this);
  ReadProperties({});
  SetInitialSize(size);
  return true;
}

void MyButton::BindEvents() {
  overTimer_.SetOwner(this);
  Bind(wxEVT_TIMER, [this](wxTimerEvent&) { OverTimer_Timer(); });
  Bind(wxEVT_PAINT, &MyButton::OnPaint, this);
  Bind(wxEVT_SET_FOCUS, &MyButton::OnFocus, this);
  Bind(wxEVT_KILL_FOCUS, &MyButton::OnFocus, this);
  const auto redraw = [this](wxEvent& event) {
    Refresh();
    event.Skip();
  };
  Bind(wxEVT_SIZE, redraw);
  Bind(wxEVT_SYS_COLOUR_CHANGED, redraw);
  Bind(wxEVT_DPI_CHANGED, [this](wxDPIChangedEvent& event) {
    InvalidateBestSize();
    Refresh();
    event.Skip();
  });
  Bind(wxEVT_MOTION, &MyButton::OnMotion, this);
  for (const auto& down : {wxEVT_LEFT_DOWN, wxEVT_MIDDLE_DOWN, wxEVT_RIGHT_DOWN})
    Bind(down, &MyButton::OnButtonDown, this);
  for (const auto& twice : {wxEVT_LEFT_DCLICK, wxEVT_MIDDLE_DCLICK, wxEVT_RIGHT_DCLICK})
    Bind(twice, &MyButton::OnButtonTwice, this);
  for (const auto& up : {wxEVT_LEFT_UP, wxEVT_MIDDLE_UP, wxEVT_RIGHT_UP})
    Bind(up, &MyButton::OnButtonUp, this);
  Bind(wxEVT_LEAVE_WINDOW, [this](wxMouseEvent& event) {
    pointerLeft_ = !HasCapture();
    event.Skip();
  });
  Bind(wxEVT_MOUSE_CAPTURE_LOST, [](wxMouseCaptureLostEvent&) {});
  Bind(wxEVT_KEY_DOWN, &MyButton::OnKeyDown, this);
  Bind(wxEVT_CHAR, &MyButton::OnChar, this);
  Bind(wxEVT_KEY_UP, &MyButton::OnKeyUp, this);
  BindFormKeys();
}

void MyButton::BindFormKeys() {
  if (wxWindow* form = wxGetTopLevelParent(this)) form->Bind(wxEVT_CHAR_HOOK, &MyButton::OnFormKey, this);
}

bool MyButton::Reparent(wxWindowBase* parent) {
  wxWindow* form = wxGetTopLevelParent(this);
  if (!wxControl::Reparent(parent)) return false;
  if (form) form->Unbind(wxEVT_CHAR_HOOK, &MyButton::OnFormKey, this);
  BindFormKeys();
  return true;
}

// The toolkit's own mirroring would turn the glyphs of what is drawn here on some desktops: the window stays
// as it is, and the face is laid out the other way.
void MyButton::SetLayoutDirection(wxLayoutDirection direction) {
  mirrored_ = direction == wxLayout_RightToLeft;
  if (wxControl::GetLayoutDirection() != wxLayout_LeftToRight)
    wxControl::SetLayoutDirection(wxLayout_LeftToRight);
  Refresh();
}

ButtonState MyButton::FaceState() const {
  return {LooksEnabled(*this), hovering_, pressed_, HasFocus(), IsFormDefault(), mirrored_};
}

bool MyButton::IsFormDefault() const {
  auto* form = dynamic_cast<wxTopLevelWindow*>(wxGetTopLevelParent(const_cast<MyButton*>(this)));
  return form && form->GetDefaultItem() == this;
}

void MyButton::SetDefault() {
  if (auto* form = dynamic_cast<wxTopLevelWindow*>(wxGetTopLevelParent(this))) form->SetDefaultItem(this);
  Refresh();
}

wxSize MyButton::DoGetBestClientSize() const {
  return ButtonFace(*const_cast<MyButton*>(this), look_, {}).BestSize();
}

void MyButton::DoEnable(bool enable) {
  wxControl::DoEnable(enable);
  pressed_ = false;
  platform::TellButtonState(*this, *this);
  Refresh();
}

void MyButton::OnPaint(wxPaintEvent&) try {
  wxPaintDC dc(this);
  const wxSize size = GetClientSize();
  if (size.x <= 0 || size.y <= 0) return;
  const ButtonState state = FaceState();
  drawnAsDefault_ = state.isDefault;
  picBuffer_.Create(size.x, size.y, dc);
  {
    wxMemoryDC buffer(picBuffer_);
    ButtonFace(*this, look_, state).Draw(buffer, size);
  }
  dc.DrawBitmap(picBuffer_, 0, 0);
} catch (...) {
  // A face that cannot be drawn now is drawn again with the next picture; a message would only cover it.
}

void MyButton::RedrawNow() {
  Refresh();
  Update();
  platform::TellButtonState(*this, *this);
}

void MyButton::OnFocus(wxFocusEvent& event) {
  if (event.GetEventType() == wxEVT_KILL_FOCUS) {
    // The release of a key that is still held goes elsewhere.
    keyHeld_ = false;
    pressed_ = false;
  }
  Refresh();
  event.Skip();
}

void MyButton::OnInternalIdle() {
  wxControl::OnInternalIdle();
  // Nobody tells that another button has become the default one.
  if (drawnAsDefault_ != IsFormDefault()) Refresh();
  if (!soundOverDue_) return;
  soundOverDue_ = false;
  PlayASound(soundOver_);
}

wxString MyButton::AccessibleName() const {
  return ButtonCaption(look_.caption).text;
}

wxString MyButton::AccessibleShortcut() const {
  return accessKeys_.empty() ? wxString() : "Alt+" + accessKeys_.Left(1);
}

wxString MyButton::AccessibleAction() const {
  return GetResource().GetString(kPress);
}

void MyButton::PressAccessibly() {
  CallAfter([this] {
    if (IsEnabled() && !locked_) RaiseClick();
  });
}

}  // namespace mindloft
