#pragma once

#include <functional>

class wxWindow;

namespace mindloft {

/// What opens the form of the connection settings, modally, over the given window.
using SettingsForm = std::function<void(wxWindow* parent)>;

/// Set by the application at start: the form is of a room above this one. Without it the login dialog has no
/// button for it.
void SetSettingsForm(SettingsForm form);
const SettingsForm& GetSettingsForm();

}  // namespace mindloft
