#pragma once

#include <wx/string.h>

namespace mindloft {

/// The text that followed the program name on the command line; replaced by what a second instance hands
/// over.
wxString& SavedCommandLine();

}  // namespace mindloft
