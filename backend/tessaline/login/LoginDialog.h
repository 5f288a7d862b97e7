#pragma once

#include <wx/string.h>

#include <filesystem>

#include "backend/tessaline/login/LoginDelay.h"

class wxWindow;

namespace mindloft::Tessaline {

/// The shared login dialog.
class LoginDialog {
 public:
  /// `directoryFile` is what an empty server means, and what the dialog offers to create; empty: the file of
  /// this computer.
  explicit LoginDialog(std::filesystem::path directoryFile = {});

  /// Shows the dialog, logs the process's Connection in, and returns true when the user logged in. The
  /// optional arguments fill the name field and name the owner window. A language chosen in the dialog
  /// becomes the client's language when the login succeeds, and is taken back when it does not.
  bool Login(const wxString& title, const wxString& userName = {}, wxWindow* owner = nullptr);

 private:
  std::filesystem::path directoryFile_;
  LoginDelay delay_;
};

}  // namespace mindloft::Tessaline
