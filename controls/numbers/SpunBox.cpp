#include "controls/numbers/SpunBox.h"

#include <wx/textctrl.h>

#include <algorithm>

#include "controls/ControlKeys.h"
#include "controls/LabelBefore.h"
#include "core/ErrorHandling.h"
#include "platform/ui/CommonControls.h"
#include "platform/ui/SpinButton.h"
#include "platform/ui/TextBox.h"

namespace mindloft {
namespace {

/// The control's own failures must not keep an event from the form, nor reach the toolkit.
template <typename Action>
void Quietly(const char* procedure, Action&& action) noexcept {
  try {
    action();
  } catch (...) {
    ReportOnly("SpunBox", procedure);
  }
}

}  // namespace

bool SpunBox::CreateParts(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                          long style, const wxString& name, const wxString& boxName,
                          const wxString& arrowsName) {
  platform::UseSystemControls();
  if (!wxPanel::Create(parent, id, position, size, style | wxTAB_TRAVERSAL | wxBORDER_NONE, name))
    return false;
  CreateBox(boxName);
  arrows_ = new SpinArrows(this, arrowsName);
  arrows_->pressed = [this](bool up) { Quietly("OnArrowPressed", [&] { OnArrowPressed(up); }); };
  arrows_->Bind(wxEVT_MOUSEWHEEL, &SpunBox::OnWheel, this);
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    PlaceParts();
    event.Skip();
  });
  BindOwnKeys();
  SetInitialSize(size);
  PlaceParts();
  return true;
}

void SpunBox::CreateBox(const wxString& name) {
  box_ = new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, boxStyle_,
                        wxDefaultValidator, name);
  platform::SetAccessibleName(*box_, [this] { return LabelBefore(*this); });
  BindBox();
}

void SpunBox::SetBoxStyle(long style) {
  if (style == boxStyle_) return;
  boxStyle_ = style;
  // Not every desktop changes the border of a box that is there.
  wxTextCtrl* former = box_;
  const bool focused = former->HasFocus();
  CreateBox(former->GetName());
  CopyState(*former);
  if (arrows_) box_->MoveBeforeInTabOrder(arrows_);
  former->SetName(wxString());
  former->SetEvtHandlerEnabled(false);
  former->Hide();
  if (focused) box_->SetFocus();
  // A handler of the former may be what runs now.
  former->CallAfter([former] { former->Destroy(); });
  PlaceParts();
}

void SpunBox::CopyState(const wxTextCtrl& from) {
  box_->ChangeValue(from.GetValue());
  box_->SetEditable(from.IsEditable());
  box_->Enable(from.IsThisEnabled());
  if (from.UseBackgroundColour()) box_->SetBackgroundColour(from.GetBackgroundColour());
  if (from.UseForegroundColour()) box_->SetForegroundColour(from.GetForegroundColour());
  long start = 0;
  long end = 0;
  from.GetSelection(&start, &end);
  box_->SetSelection(start, end);
}

void SpunBox::BindBox() {
  box_->Bind(wxEVT_KEY_DOWN, &SpunBox::BoxKeyDown, this);
  box_->Bind(wxEVT_CHAR, &SpunBox::BoxChar, this);
  box_->Bind(wxEVT_KEY_UP, &SpunBox::OnKeyUp, this);
  box_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { Quietly("OnTextChanged", [this] { OnTextChanged(); }); });
  box_->Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
    event.Skip();
    if (IsBeingDeleted()) return;
    Quietly("OnLeave", [this] { OnLeave(); });
    Guarded("SpunBox", "LostFocus", [this] {
      if (LostFocus) LostFocus();
    });
  });
  box_->Bind(wxEVT_MOUSEWHEEL, &SpunBox::OnWheel, this);
}

void SpunBox::BindOwnKeys() {
  Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) { event.Skip(RaiseKeyDown(event)); });
  Bind(wxEVT_CHAR, [this](wxKeyEvent& event) {
    int key = TypedCharacter(event);
    if (key != 0) RaiseKeyPress(key);
    event.Skip();
  });
  Bind(wxEVT_KEY_UP, &SpunBox::OnKeyUp, this);
}

void SpunBox::ShowArrows(bool shown) {
  arrows_->Show(shown);
  InvalidateBestSize();
  PlaceParts();
}

void SpunBox::PlaceParts() {
  if (!arrows_) return;
  const wxSize size = GetClientSize();
  const wxSize arrows = arrows_->IsShown() ? ArrowsSize() : wxSize();
  box_->SetSize(0, 0, std::max(size.x - arrows.x, 0), size.y);
  // What has no room is cut off instead of squeezed.
  if (arrows_->IsShown())
    arrows_->SetSize(std::max(size.x - arrows.x, 0), 0, arrows.x, std::max(size.y, arrows.y));
}

wxSize SpunBox::ArrowsSize() const {
  return {arrows_->GetBestSize().x, platform::LeastHeight(*arrows_)};
}

wxSize SpunBox::DoGetBestClientSize() const {
  wxSize best = box_->GetBestSize();
  if (arrows_ && arrows_->IsShown()) {
    best.x += ArrowsSize().x;
    best.y = std::max(best.y, ArrowsSize().y);
  }
  return best;
}

void SpunBox::LoadInfoOnControl() {
  // Nothing in it is a text of the language; its name is the label before it, which the form reloads.
}

void SpunBox::BoxKeyDown(wxKeyEvent& event) {
  const int key = ControlKeyCode(event);
  constexpr int Up = 38;
  constexpr int Down = 40;
  const bool arrow = key == Up || key == Down;
  if (arrow) Quietly("OnArrowKey", [&] { OnArrowKey(key == Up); });
  const bool cancelled = !RaiseKeyDown(event);
  // The box would move its caret by an arrow, or the focus to another control.
  event.Skip(!arrow && !cancelled);
}

void SpunBox::BoxChar(wxKeyEvent& event) {
  HandleTypedKey(event, *box_, [this](int& key) {
    Quietly("FilterTyped", [&] { FilterTyped(key); });
    RaiseKeyPress(key);
  });
}

void SpunBox::OnKeyUp(wxKeyEvent& event) {
  int key = ControlKeyCode(event);
  Guarded("SpunBox", "KeyUp", [&] {
    if (KeyUp) KeyUp(key, ShiftState(event));
  });
  event.Skip();
}

void SpunBox::OnWheel(wxMouseEvent& event) {
  // A wheel that passes over a form on its way must not change its numbers.
  if (event.GetEventObject() == box_ && !box_->HasFocus()) {
    event.Skip();
    return;
  }
  wheelRotation_ += event.GetWheelRotation();
  const int notch = std::max(event.GetWheelDelta(), 1);
  for (; wheelRotation_ >= notch; wheelRotation_ -= notch)
    Quietly("OnWheel", [this] { OnArrowPressed(true); });
  for (; wheelRotation_ <= -notch; wheelRotation_ += notch)
    Quietly("OnWheel", [this] { OnArrowPressed(false); });
}

void SpunBox::RaiseChange() {
  Guarded("SpunBox", "Change", [this] {
    if (Change) Change();
  });
}

bool SpunBox::RaiseKeyDown(const wxKeyEvent& event) {
  int key = ControlKeyCode(event);
  Guarded("SpunBox", "KeyDown", [&] {
    if (KeyDown) KeyDown(key, ShiftState(event));
  });
  return key != 0;
}

void SpunBox::RaiseKeyPress(int& keyAscii) {
  Guarded("SpunBox", "KeyPress", [&] {
    if (KeyPress) KeyPress(keyAscii);
  });
}

}  // namespace mindloft
