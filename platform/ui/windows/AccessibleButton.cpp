#include "platform/ui/AccessibleButton.h"

#include <wx/access.h>
#include <wx/window.h>

namespace mindloft::platform {
namespace {

/// Called by the system: nothing may be thrown out of it.
template <typename Answer>
wxAccStatus Answering(Answer&& answer) noexcept {
  try {
    answer();
    return wxACC_OK;
  } catch (...) {
    return wxACC_FAIL;
  }
}

class ButtonAccessible : public wxWindowAccessible {
 public:
  ButtonAccessible(wxWindow& window, AccessibleButton& button)
      : wxWindowAccessible(&window), button_(button) {}

  wxAccStatus GetRole(int, wxAccRole* role) override {
    *role = wxROLE_SYSTEM_PUSHBUTTON;
    return wxACC_OK;
  }
  wxAccStatus GetName(int, wxString* name) override {
    return Answering([&] { *name = button_.AccessibleName(); });
  }
  wxAccStatus GetKeyboardShortcut(int, wxString* shortcut) override {
    return Answering([&] { *shortcut = button_.AccessibleShortcut(); });
  }
  wxAccStatus GetDefaultAction(int, wxString* name) override {
    return Answering([&] { *name = button_.AccessibleAction(); });
  }
  wxAccStatus DoDefaultAction(int) override {
    return Answering([&] { button_.PressAccessibly(); });
  }
  wxAccStatus GetState(int, long* state) override {
    return Answering([&] { *state = State(); });
  }

 private:
  long State() {
    const wxWindow& window = *GetWindow();
    long state = window.IsEnabled() ? wxACC_STATE_SYSTEM_FOCUSABLE : wxACC_STATE_SYSTEM_UNAVAILABLE;
    if (!window.IsShownOnScreen()) state |= wxACC_STATE_SYSTEM_INVISIBLE;
    if (window.HasFocus()) state |= wxACC_STATE_SYSTEM_FOCUSED;
    if (button_.IsAccessiblyPressed()) state |= wxACC_STATE_SYSTEM_PRESSED;
    if (button_.IsAccessiblyHovered()) state |= wxACC_STATE_SYSTEM_HOTTRACKED;
    if (button_.IsAccessiblyDefault()) state |= wxACC_STATE_SYSTEM_DEFAULT;
    return state;
  }

  AccessibleButton& button_;
};

}  // namespace

void PresentAsButton(wxWindow& window, AccessibleButton& button) {
  new ButtonAccessible(window, button);  // the window's from now on
}

void TellButtonName(wxWindow& window, const AccessibleButton&) {
  wxAccessible::NotifyEvent(wxACC_EVENT_OBJECT_NAMECHANGE, &window, wxOBJID_CLIENT, wxACC_SELF);
}

void TellButtonState(wxWindow& window, const AccessibleButton&) {
  wxAccessible::NotifyEvent(wxACC_EVENT_OBJECT_STATECHANGE, &window, wxOBJID_CLIENT, wxACC_SELF);
}

}  // namespace mindloft::platform
