#pragma once

class wxWindow;

namespace mindloft {

/// Makes the console's own controls known to the forms' XRC. Before the first form that holds one is loaded;
/// further calls do nothing.
void RegisterControls();
/// The same on the way to a form's parent: for a constructor whose base class loads the form.
wxWindow* WithControls(wxWindow* parent);

}  // namespace mindloft
