#pragma once

namespace mindloft {

/// The switch of the client settings. A damaged one is reported and means off: it must not keep anybody from
/// logging in.
bool IsAutoLoginEnabled();

/// Logs the process's Connection in with the stored client settings. False when it did not work, for any
/// reason; a failure is reported but never shown.
bool AutoLogin();

}  // namespace mindloft
