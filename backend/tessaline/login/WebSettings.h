#pragma once

#include <wx/string.h>

namespace mindloft::Corvane {
class Connection;
}

namespace mindloft {

/// The web address with "HTTPS:" in the place of "HTTP:" when the settings ask for a secure channel.
wxString SecureWebAddress(const wxString& address);

/// Copies the proxy, when it is enabled, and the time-out from the client settings; a time-out below one
/// second becomes 30 seconds. Throws what the conversions throw.
void LoadWebSettings(Corvane::Connection& connection);

}  // namespace mindloft
