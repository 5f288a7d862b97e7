#include "platform/ui/MouseWheel.h"

#include <wx/eventfilter.h>
#include <wx/listctrl.h>
#include <wx/treectrl.h>
#include <wx/utils.h>

#include <map>
#include <memory>

#include "platform/ui/ScrollHelpers.h"
#include "platform/ui/WheelTarget.h"

namespace mindloft::platform {
namespace {

/// Sees every wheel event before the control that has the focus does.
class WheelFilter : public wxEventFilter {
 public:
  WheelFilter() { wxEvtHandler::AddFilter(this); }
  ~WheelFilter() override { wxEvtHandler::RemoveFilter(this); }
  int FilterEvent(wxEvent& event) override;
};

class Hooks {
 public:
  void Add(wxWindow* window) {
    if (++counts_[window] > 1) return;
    window->Bind(wxEVT_DESTROY, &Hooks::OnDestroy, this);
    ReplaceWindowProcedure(window);
    if (!filter_) filter_ = std::make_unique<WheelFilter>();
  }

  void Remove(wxWindow* window) {
    auto found = counts_.find(window);
    if (found == counts_.end() || --found->second > 0) return;
    RestoreWindowProcedure(window);
    window->Unbind(wxEVT_DESTROY, &Hooks::OnDestroy, this);
    Forget(window);
  }

  bool Has(const wxWindow* window) const { return counts_.count(const_cast<wxWindow*>(window)) > 0; }

 private:
  void OnDestroy(wxWindowDestroyEvent& event) {
    event.Skip();
    Forget(event.GetWindow());
  }

  void Forget(wxWindow* window) {
    counts_.erase(window);
    if (counts_.empty()) filter_.reset();
  }

  std::map<wxWindow*, int> counts_;
  std::unique_ptr<WheelFilter> filter_;
};

Hooks& TheHooks() {
  static Hooks hooks;
  return hooks;
}

/// Whether the window, or one that it lies in, is one of the lists and trees of the console.
wxWindow* ListAround(wxWindow* window) {
  for (; window && !window->IsTopLevel(); window = window->GetParent()) {
    if (dynamic_cast<wxListCtrl*>(window) || dynamic_cast<wxTreeCtrlBase*>(window)) return window;
  }
  return nullptr;
}

int WheelFilter::FilterEvent(wxEvent& event) try {
  if (event.GetEventType() != wxEVT_MOUSEWHEEL) return Event_Skip;
  const auto& wheel = static_cast<const wxMouseEvent&>(event);
  auto* window = dynamic_cast<wxWindow*>(event.GetEventObject());
  if (!window || wheel.GetWheelAxis() != wxMOUSE_WHEEL_VERTICAL || wheel.HasAnyModifiers()) return Event_Skip;
  auto* top = wxGetTopLevelParent(window);
  if (!TheHooks().Has(top)) return Event_Skip;
  return ScrollUnderPointer(top, wheel.GetWheelRotation(), wheel.GetWheelDelta()) ? Event_Processed
                                                                                  : Event_Skip;
} catch (...) {
  return Event_Skip;
}

}  // namespace

wxWindow* WheelTarget(const wxWindow* window) {
  auto* list = ListAround(wxFindWindowAtPoint(wxGetMousePosition()));
  if (!list || wxGetTopLevelParent(list) != window || !list->IsEnabled() || !HaveScrollBar(list))
    return nullptr;
  return list;
}

bool ScrollUnderPointer(const wxWindow* hooked, int rotation, int delta) {
  static wxWindow* last = nullptr;
  static int rest = 0;
  auto* target = WheelTarget(hooked);
  if (!target || delta <= 0) return false;
  // Fine wheels tell parts of a notch; what another list was told is no part of this one's.
  if (target != last || (rest > 0) != (rotation > 0)) rest = 0;
  last = target;
  rest += rotation;
  auto notches = rest / delta;
  rest -= notches * delta;
  if (notches != 0) ScrollToLine(target, -notches);
  return true;
}

void Hook2(wxWindow* window) {
  if (window) TheHooks().Add(window);
}

void Unhook2(wxWindow* window) {
  if (window) TheHooks().Remove(window);
}

bool IsHooked(const wxWindow* window) {
  return TheHooks().Has(window);
}

}  // namespace mindloft::platform
