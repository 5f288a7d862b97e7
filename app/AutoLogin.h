#pragma once

namespace mindloft {

/// Logs the process's Connection in with the stored client settings. False when it did not work, for any
/// reason; a failure is reported but never shown.
bool AutoLogin();

}  // namespace mindloft
