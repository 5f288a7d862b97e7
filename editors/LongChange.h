#pragma once

#include <wx/string.h>

#include <chrono>
#include <functional>

#include "backend/directory/Changes.h"

class wxWindow;

namespace mindloft {

/// What a user waits for without being told how long it takes.
inline constexpr std::chrono::milliseconds kPatience{500};

/// Runs a change that may take long. When it has taken longer than `patience`, frmDeleteKDomainProgress shows
/// how far it is and lets the user cancel it; the program's other windows are disabled then, but go on being
/// painted. False: cancelled, and nothing was changed. Throws what the change throws.
bool RunLongChange(wxWindow* owner, const wxString& caption, std::chrono::milliseconds patience,
                   const std::function<void(const Progress& progress)>& change);

}  // namespace mindloft
