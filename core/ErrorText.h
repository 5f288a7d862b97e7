#pragma once

#include <wx/string.h>

namespace mindloft {

class Error;

/// The numbered text with the error's parameters: what the user reads first.
wxString TextOf(const Error& error);

}  // namespace mindloft
