#pragma once

#include <wx/string.h>

#include <filesystem>

namespace mindloft {

/// What the login dialog starts with, and keeps when it has to be opened again for another reading direction.
struct LoginFields {
  wxString title;
  int titleNumber = 0;  ///< of the text that the title is, so that it follows the language; 0: it is none
  wxString userName;
  wxString server;
  wxString storedServer;  ///< what the settings say
  std::filesystem::path directoryFile;
};

}  // namespace mindloft
