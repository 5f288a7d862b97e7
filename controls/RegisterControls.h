#pragma once

namespace mindloft {

/// Makes the console's own controls known to the forms' XRC. Before the first form that holds one is loaded;
/// further calls do nothing.
void RegisterControls();

}  // namespace mindloft
