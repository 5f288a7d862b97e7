#pragma once

#include <wx/string.h>

class wxWindow;

namespace mindloft::platform {

/// What a button that is drawn by the program itself tells a screen reader. Mixed into the button's class.
class AccessibleButton {
 public:
  virtual ~AccessibleButton() = default;
  virtual wxString AccessibleName() const = 0;      ///< without "&"
  virtual wxString AccessibleShortcut() const = 0;  ///< "Alt+S"; empty without an access key
  virtual wxString AccessibleAction() const = 0;    ///< what pressing it is called: "Press"
  virtual bool IsAccessiblyPressed() const = 0;
  virtual bool IsAccessiblyHovered() const = 0;
  virtual bool IsAccessiblyDefault() const = 0;
  /// The screen reader's user presses it. Called from within the system: to be done later.
  virtual void PressAccessibly() = 0;
};

/// Presents the window as a push button. Once, after it was created; `button` is (part of) the window. On
/// Linux the role and the name are told, the rest is Windows' only.
void PresentAsButton(wxWindow& window, AccessibleButton& button);

/// To be called when the name or the state has changed.
void TellButtonName(wxWindow& window, const AccessibleButton& button);
void TellButtonState(wxWindow& window, const AccessibleButton& button);

}  // namespace mindloft::platform
