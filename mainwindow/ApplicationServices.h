#pragma once

#include <wx/string.h>

#include <functional>

namespace mindloft {

/// What the main window needs of the application above it. The application fills these in before it makes the
/// window; a command whose service is empty is disabled.
struct ApplicationServices {
  /// Opens the help file.
  std::function<void()> showHelp;
  /// The user's working folder; asks for one when there is none and `ask` is true. Empty: none.
  std::function<wxString(bool ask)> getWorkingFolder;
  /// Brings every window of that caption and window class to the front.
  std::function<void(const wxString& caption, const wxString& windowClass)> activeMindloft;
};

/// The one set of this process.
ApplicationServices& GetApplicationServices();

}  // namespace mindloft
