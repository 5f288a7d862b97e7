#include "platform/ui/TextBox.h"

#include <windows.h>
#include <wx/access.h>
#include <wx/textctrl.h>

namespace mindloft::platform {
namespace {

/// Answers for the name only; all else is the system's own answer for its control.
class NamedAccessible : public wxAccessible {
 public:
  NamedAccessible(wxWindow* window, std::function<wxString()> name)
      : wxAccessible(window), name_(std::move(name)) {}

  wxAccStatus GetName(int childId, wxString* name) override {
    const wxString known = childId == wxACC_SELF ? name_() : wxString();
    if (known.empty()) return wxACC_NOT_IMPLEMENTED;
    *name = known;
    return wxACC_OK;
  }

 private:
  std::function<wxString()> name_;
};

}  // namespace
void SetPasswordCharacter(wxTextCtrl& box, char32_t character) {
  constexpr char32_t LastOfOneUnit = 0xFFFF;
  constexpr char32_t Bullet = 0x25CF;
  if (character > LastOfOneUnit) character = Bullet;
  SendMessageW(box.GetHandle(), EM_SETPASSWORDCHAR, character, 0);
  box.Refresh();
}

void LiftTextLimit(wxTextCtrl& box) {
  SendMessageW(box.GetHandle(), EM_SETLIMITTEXT, 0, 0);
}

void PutInsideFrame(wxTextCtrl&, int) {}
void ApplyUnderline(wxTextCtrl&) {}
// The system draws what is only read on the form's ground by itself.
void ShowGround(wxTextCtrl&) {}

void SetAccessibleName(wxTextCtrl& box, std::function<wxString()> name) {
  // The window owns it.
  box.SetAccessible(new NamedAccessible(&box, std::move(name)));
}

wxString AccessibleName(wxTextCtrl& box) {
  wxString name;
  if (auto* accessible = box.GetAccessible()) accessible->GetName(wxACC_SELF, &name);
  return name;
}

int LineBreakPositions() {
  return 2;
}

}  // namespace mindloft::platform
