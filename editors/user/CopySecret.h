#pragma once

#include <wx/string.h>

namespace mindloft {

/// Puts a secret on the clipboard, marked so that the desktop's clipboard history does not keep it. False
/// when the clipboard cannot be had.
bool CopySecret(const wxString& secret);

}  // namespace mindloft
