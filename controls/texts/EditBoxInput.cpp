#include <wx/clipbrd.h>
#include <wx/dataobj.h>

#include "controls/ControlKeys.h"
#include "controls/numbers/FilterKey.h"
#include "controls/texts/EditBox.h"
#include "core/ErrorHandling.h"
#include "platform/ui/Metrics.h"

namespace mindloft {
namespace {

constexpr int kCtrl = 2;
constexpr int kCtrlShift = 3;

int ButtonOf(const wxMouseEvent& event) {
  switch (event.GetButton()) {
    case wxMOUSE_BTN_LEFT:
      return 1;
    case wxMOUSE_BTN_RIGHT:
      return 2;
    default:
      return 4;
  }
}

wxString ClipboardText() {
  const wxClipboardLocker lock;
  wxTextDataObject data;
  if (!lock || !wxTheClipboard->GetData(data)) return {};
  return data.GetText();
}

}  // namespace

template <typename Procedure>
void EditBox::Run(const char* event, Procedure procedure) const {
  Guarded(className_, (GetName() + "_" + event).utf8_str(), procedure);
}

void EditBox::TellChange() const {
  if (events_.Change) Run("Change", events_.Change);
}

void EditBox::BindKeys() {
  Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    // Before the form takes it to change pages; Tab alone goes on to the next control.
    const bool insertsTab = IsMultiLine() && IsEditable() && event.GetKeyCode() == WXK_TAB &&
                            event.GetModifiers() == wxMOD_CONTROL;
    if (insertsTab)
      Run("KeyDown", [this] { PutSelection("\t"); });
    else
      event.Skip();
  });
  Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) { Run("KeyDown", [&] { OnKeyDown(event); }); });
  Bind(wxEVT_KEY_UP, [this](wxKeyEvent& event) {
    event.Skip();
    int keyCode = ControlKeyCode(event);
    if (events_.KeyUp) Run("KeyUp", [&] { events_.KeyUp(keyCode, ShiftState(event)); });
  });
  Bind(wxEVT_CHAR, [this](wxKeyEvent& event) { Run("KeyPress", [&] { OnChar(event); }); });
}

void EditBox::OnKeyDown(wxKeyEvent& event) {
  int keyCode = ControlKeyCode(event);
  if (events_.KeyDown) events_.KeyDown(keyCode, ShiftState(event));
  if (keyCode != 0 && !DoEditingKey(event)) event.Skip();
}

// Not every desktop's box has all of these; and commands are no characters that a filter could refuse.
bool EditBox::DoEditingKey(const wxKeyEvent& event) {
  const int shift = ShiftState(event);
  if (shift != kCtrl && shift != kCtrlShift) return false;
  const int key = ControlKeyCode(event);
  if (key == 'Z' && shift == kCtrlShift) {
    Redo();
    return true;
  }
  if (shift != kCtrl) return false;
  switch (key) {
    case 'A':
      SelectAll();
      return true;
    case 'Z':
      Undo();
      return true;
    case 'Y':
      Redo();
      return true;
    case 'C':
      if (rules_.isNumber) Copy();
      return rules_.isNumber;
    case 'X':
      if (rules_.isNumber && IsEditable()) Cut();
      return rules_.isNumber;
    case 'V':
      if (rules_.isNumber && IsEditable()) Paste();
      return rules_.isNumber;
    default:
      return false;
  }
}

bool EditBox::IsFull() const {
  return rules_.maxLength > 0 && CharactersBesideSelection() >= static_cast<std::size_t>(rules_.maxLength);
}

void EditBox::OnChar(wxKeyEvent& event) {
  constexpr int FirstPrintable = 0x20;
  if (TypedCharacter(event) >= FirstPrintable && IsEditable() && IsFull()) return;
  HandleTypedKey(event, *this, [this](int& keyAscii) {
    if (rules_.isNumber) FilterKey(kNumberCharacters, keyAscii, true);
    if (keyPress) keyPress(keyAscii);
  });
}

void EditBox::BindMouse() {
  const auto bind = [this](wxEventTypeTag<wxMouseEvent> type, const char* event, auto procedure) {
    Bind(type, [this, event, procedure](wxMouseEvent& mouse) {
      mouse.Skip();
      Run(event, [&] { procedure(mouse); });
    });
  };
  for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_RIGHT_DOWN, wxEVT_MIDDLE_DOWN}) {
    bind(type, "MouseDown", [this](const wxMouseEvent& mouse) {
      isPressed_ = mouse.LeftDown();
      OnMouse(events_.MouseDown, mouse);
    });
  }
  for (const auto& type : {wxEVT_RIGHT_UP, wxEVT_MIDDLE_UP}) {
    bind(type, "MouseUp", [this](const wxMouseEvent& mouse) { OnMouse(events_.MouseUp, mouse); });
  }
  bind(wxEVT_LEFT_UP, "MouseUp", [this](const wxMouseEvent& mouse) { OnLeftUp(mouse); });
  bind(wxEVT_LEFT_DCLICK, "DblClick", [this](const wxMouseEvent&) {
    if (doubleClick && doubleClick()) return;
    if (events_.DblClick) events_.DblClick();
  });
}

void EditBox::OnMouse(const MouseHandler& handler, const wxMouseEvent& event) const {
  if (!handler) return;
  const wxPoint place = control_.ScreenToClient(ClientToScreen(event.GetPosition()));
  handler(ButtonOf(event), ShiftState(event), platform::PixelsToTwipsX(place.x, this),
          platform::PixelsToTwipsY(place.y, this));
}

void EditBox::OnLeftUp(const wxMouseEvent& event) {
  const bool isClick = isPressed_ && GetClientRect().Contains(event.GetPosition());
  isPressed_ = false;
  OnMouse(events_.MouseUp, event);
  if (isClick && events_.Click) Run("Click", events_.Click);
}

void EditBox::BindText() {
  Bind(wxEVT_TEXT, [this](wxCommandEvent&) { Run("Change", [this] { OnText(); }); });
  // A masked text is never given away; the desktop's own boxes do not all see to that.
  const auto keepSecret = [this](wxClipboardTextEvent& event) {
    if (!isSecret_) event.Skip();
  };
  Bind(wxEVT_TEXT_COPY, keepSecret);
  Bind(wxEVT_TEXT_CUT, keepSecret);
  // By hand: boxes of one line drop what stands after a line break, and limits cut characters in halves.
  Bind(wxEVT_TEXT_PASTE, [this](wxClipboardTextEvent&) {
    if (IsEditable()) Run("Paste", [this] { PasteText(); });
  });
}

void EditBox::PasteText() {
  const wxString text = ClipboardText();
  if (!text.empty()) PutSelection(text);
}

}  // namespace mindloft
