#pragma once

#include <wx/string.h>

#include "app/StartServices.h"

namespace mindloft {

/// Start-up and login: creates the Application, logs in (automatically, or through the login dialog) and
/// shows the main window. No window is left when the login was refused or cancelled.
void Main(const wxString& commandLine, const StartServices& services);

/// Opens the help file, whose name is text 49063.
void ShowHelp();

/// The user's working folder. When there is none and `ask` is true, the user may choose one, which is then
/// kept. Empty: none.
wxString GetWorkingFolder(bool ask);

}  // namespace mindloft
