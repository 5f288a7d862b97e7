#pragma once

#include <wx/event.h>
#include <wx/weakref.h>

#include <utility>

#include "core/ErrorHandling.h"

namespace mindloft {

/// Calls a form's handler of a control's event, when there is one, and shows its error. The handler may
/// destroy the control: false when it has.
template <typename Handler, typename... Arguments>
bool RaiseEvent(wxEvtHandler& control, const char* className, const char* eventName, const Handler& handler,
                Arguments&&... arguments) {
  const wxWeakRef<wxEvtHandler> alive(&control);
  const Handler running = handler;  // the control's own goes with it
  Guarded(className, eventName, [&] {
    if (running) running(std::forward<Arguments>(arguments)...);
  });
  return alive.get() != nullptr;
}

}  // namespace mindloft
