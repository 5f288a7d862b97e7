#include "platform/ui/AccessKeys.h"

#include <windows.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/event.h>
#include <wx/eventfilter.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>

namespace mindloft::platform {
namespace {

/// 0: the label has none.
wxUniChar AccessKeyOf(const wxString& label) {
  for (std::size_t at = 0; at + 1 < label.length(); ++at) {
    if (label[at] != '&') continue;
    if (label[++at] != '&') return label[at];
  }
  return 0;
}

/// Whether that key types the letter, on the present keyboard or on one of Latin letters.
bool Types(const wxKeyEvent& event, wxUniChar letter) {
  const wxUniChar upper = wxToupper(letter);
  if (upper.IsAscii() && event.GetKeyCode() == static_cast<int>(upper.GetValue())) return true;
  const SHORT key = VkKeyScanW(static_cast<WCHAR>(letter.GetValue()));
  return key != -1 && LOBYTE(key) == event.GetRawKeyCode();
}

template <typename... Kinds>
bool IsOneOf(const wxWindow& window) {
  return (dynamic_cast<const Kinds*>(&window) || ...);
}

/// The label or button that the key belongs to; nullptr: none.
wxWindow* OwnerOf(const wxWindow& window, const wxKeyEvent& event) {
  for (wxWindow* child : window.GetChildren()) {
    if (child->IsTopLevel() || !child->IsShown() || !child->IsEnabled()) continue;
    if (IsOneOf<wxStaticText, wxButton, wxCheckBox, wxRadioButton>(*child)) {
      const wxUniChar letter = AccessKeyOf(child->GetLabel());
      if (letter != 0 && Types(event, letter)) return child;
    }
    if (wxWindow* found = OwnerOf(*child, event)) return found;
  }
  return nullptr;
}

/// The system looks for the key's owner in the innermost window that holds controls: from inside a control of
/// several windows it finds none.
class AccessKeyFilter : public wxEventFilter {
 public:
  AccessKeyFilter() { wxEvtHandler::AddFilter(this); }
  ~AccessKeyFilter() override { wxEvtHandler::RemoveFilter(this); }
  AccessKeyFilter(const AccessKeyFilter&) = delete;
  AccessKeyFilter& operator=(const AccessKeyFilter&) = delete;

  int FilterEvent(wxEvent& event) override {
    if (event.GetEventType() != wxEVT_CHAR_HOOK) return Event_Skip;
    const auto& key = static_cast<const wxKeyEvent&>(event);
    const wxWindow* form = key.GetModifiers() == wxMOD_ALT ? wxGetActiveWindow() : nullptr;
    wxWindow* owner = form ? OwnerOf(*form, key) : nullptr;
    const bool isLabel = owner && IsOneOf<wxStaticText>(*owner);
    wxWindow* target = isLabel ? ControlBehind(*owner) : owner;
    if (!target) return Event_Skip;
    // The system must see the key, or it takes Alt alone for the way into the menu.
    DefWindowProcW(GetActiveWindow(), WM_SYSKEYDOWN, key.GetRawKeyCode(),
                   static_cast<LPARAM>(key.GetRawKeyFlags()));
    target->SetFocusFromKbd();
    // Not from here: what the button does may take long, and the system waits for the answer to the key.
    if (!isLabel) PostMessageW(target->GetHWND(), BM_CLICK, 0, 0);
    return Event_Processed;
  }
};

}  // namespace

void LeadAccessKeys() {
  static AccessKeyFilter filter;
}

}  // namespace mindloft::platform
