#include "controls/buttons/LineBreak.h"

#include <wx/event.h>
#include <wx/textctrl.h>

namespace mindloft {
namespace {

/// False when a handler has taken the key.
bool SendKey(wxTextCtrl& box, wxEventType type) {
  wxKeyEvent event(type);
  event.SetEventObject(&box);
  event.SetId(box.GetId());
  event.m_keyCode = WXK_RETURN;
  event.m_uniChar = WXK_RETURN;
  event.SetControlDown(true);
  return !box.HandleWindowEvent(event);
}

}  // namespace

wxTextCtrl* FocusedLines() {
  auto* box = dynamic_cast<wxTextCtrl*>(wxWindow::FindFocus());
  return box && box->IsMultiLine() ? box : nullptr;
}

// Not by the system's own key: there Ctrl+Enter presses the default button, which would come back here.
void BreakLine(wxTextCtrl& box) {
  if (!SendKey(box, wxEVT_KEY_DOWN) || !SendKey(box, wxEVT_CHAR)) return;
  if (box.IsEditable()) box.WriteText("\n");
}

}  // namespace mindloft
