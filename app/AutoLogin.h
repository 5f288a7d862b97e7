#pragma once

#include <functional>

namespace mindloft {

/// The switch of the client settings. A damaged one is reported and means off: it must not keep anybody from
/// logging in.
bool IsAutoLoginEnabled();

/// Logs the process's Connection in with the stored client settings. False when it did not work, for any
/// reason; a failure is reported but never shown. The login itself, which works on the password and waits for
/// the disk, goes on on another thread while this one does what is wanted `meanwhile`; that must neither
/// throw nor use the Connection.
bool AutoLogin(const std::function<void()>& meanwhile = {});

}  // namespace mindloft
