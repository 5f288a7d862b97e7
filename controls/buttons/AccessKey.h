#pragma once

#include <wx/string.h>

class wxKeyEvent;

namespace mindloft {

/// Whether the key is Alt with one of the access keys (in upper case).
bool IsAccessKey(const wxKeyEvent& event, const wxString& accessKeys);

}  // namespace mindloft
