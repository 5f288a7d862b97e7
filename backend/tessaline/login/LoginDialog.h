#pragma once

#include <wx/string.h>

class wxWindow;

namespace mindloft::Tessaline {

/// The shared login dialog.
class LoginDialog {
 public:
  /// Shows the dialog, logs the process's Connection in, and returns true when the user logged in. The
  /// optional arguments fill the name field and name the owner window.
  bool Login(const wxString& title, const wxString& userName = {}, wxWindow* owner = nullptr);
};

}  // namespace mindloft::Tessaline
