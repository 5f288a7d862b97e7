#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "backend/corvane/Corvane.h"
#include "controls/explorer/ctExplorer.h"
#include "mainwindow/frmSysAdmin.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {

/// The real main window over a real directory: admin and a user without rights, two domains with different
/// members, names of the worst kind.
class MainWindowTest : public PrivateServices {
 protected:
  void SetUp() override;
  void TearDown() override;

  void MakeDirectory();
  /// Logs in and opens the window.
  void Open(const std::string& user = "admin", bool startWithNode = false);
  /// Closes it as a user would; false when it refused.
  bool CloseWindow();
  ctExplorer& Explorer() { return form_->Explorer(); }
  /// Selects the node on that way of captions' keys, from the root down.
  void Select(const std::vector<wxString>& path);
  int Node(const std::vector<wxString>& path);
  /// All rows of the list, their fields parted by "|".
  std::vector<wxString> Rows();
  wxString Status(int field);
  wxString MenuText(const wxString& name);
  bool IsEnabled(const wxString& name);
  wxString DomainKey(const std::string& name);
  Corvane::Server& Server();

  /// Of all users.
  static constexpr const char* kPassword = "a password for tests";
  const std::filesystem::path file_ = folder_.Path() / "test.directory";
  frmSysAdmin* form_ = nullptr;
};

}  // namespace mindloft::test
