#pragma once

#include <wx/string.h>

class wxWindow;

namespace mindloft {

/// The text of the static label that stands before the window among its siblings, without its mnemonic: what
/// a person reads as the window's name. Empty when something else stands there.
wxString LabelBefore(const wxWindow& window);

}  // namespace mindloft
