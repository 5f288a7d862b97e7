#pragma once

#include <wx/string.h>

namespace mindloft {

/// Whether a text that is not blank can be an e-mail address: exactly one "@", neither first nor last.
bool IsEMailAddress(const wxString& text);

}  // namespace mindloft
