#pragma once

#include <wx/string.h>

#include <filesystem>
#include <functional>

#include "backend/corvane/DirectoryProvider.h"

namespace mindloft {

/// What the start asks of the world around it.
struct StartServices {
  /// How a connection reaches its directory.
  Corvane::DirectoryProvider directories;
  std::function<bool()> isShiftDown;
  /// The interactive login under that title; true when the user logged in.
  std::function<bool(const wxString& title)> login;
  /// Brings an open login dialog to the front.
  std::function<void()> raiseLogin;
  /// Makes what the main window needs nobody to be logged in for, while an automatic login is under way. May
  /// be missing.
  std::function<void()> prepareMainWindow;
  std::function<void()> showMainWindow;
  /// Lets the main window, if it is still open, take over the saved command line.
  std::function<void()> handOver;

  /// The real ones. `directoryFile` is what "this computer" means, and `open` opens it.
  static StartServices Real(std::filesystem::path directoryFile,
                            std::function<std::shared_ptr<Directory>()> open);
};

}  // namespace mindloft
