#include "platform/ui/LabelKeys.h"

#include <windows.h>
#include <wx/event.h>
#include <wx/eventfilter.h>
#include <wx/stattext.h>
#include <wx/toplevel.h>

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

const wxStaticText* LabelOf(const wxWindow& window, const wxKeyEvent& event) {
  for (const wxWindow* child : window.GetChildren()) {
    if (child->IsTopLevel() || !child->IsShown()) continue;
    if (const auto* label = dynamic_cast<const wxStaticText*>(child)) {
      const wxUniChar letter = AccessKeyOf(label->GetLabel());
      if (letter != 0 && Types(event, letter)) return label;
    }
    if (const auto* found = LabelOf(*child, event)) return found;
  }
  return nullptr;
}

/// The system looks for labels in the innermost window that holds controls: inside a control of several
/// windows it finds none.
class LabelFilter : public wxEventFilter {
 public:
  LabelFilter() { wxEvtHandler::AddFilter(this); }
  ~LabelFilter() override { wxEvtHandler::RemoveFilter(this); }
  LabelFilter(const LabelFilter&) = delete;
  LabelFilter& operator=(const LabelFilter&) = delete;

  int FilterEvent(wxEvent& event) override {
    if (event.GetEventType() != wxEVT_CHAR_HOOK) return Event_Skip;
    const auto& key = static_cast<const wxKeyEvent&>(event);
    if (key.GetModifiers() != wxMOD_ALT) return Event_Skip;
    const wxWindow* focus = wxWindow::FindFocus();
    const wxWindow* form = focus ? wxGetTopLevelParent(const_cast<wxWindow*>(focus)) : nullptr;
    const wxStaticText* label = form ? LabelOf(*form, key) : nullptr;
    wxWindow* control = label ? ControlBehind(*label) : nullptr;
    if (!control) return Event_Skip;
    control->SetFocusFromKbd();
    return Event_Processed;
  }
};

}  // namespace

void LeadLabelKeys() {
  static LabelFilter filter;
}

}  // namespace mindloft::platform
