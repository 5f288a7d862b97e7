#pragma once

#include <functional>

class wxWindow;

namespace mindloft {

/// Lets the user add, change and remove styles, above `parent`, and returns when that is closed.
using StyleEditor = std::function<void(wxWindow* parent)>;

/// The process's one. The editor is a form above the controls, so the program hands it in at its start; an
/// empty one takes it away.
void SetStyleEditor(StyleEditor editor);

/// Whether there is one that the logged-in user may use.
bool MayEditStyles();

/// Throws Unexpected when the program has not set an editor.
void EditStyles(wxWindow* parent);

}  // namespace mindloft
