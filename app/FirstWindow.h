#pragma once

#include <future>
#include <memory>

namespace mindloft {

class frmSysAdmin;

/// The main window of a start. What needs nobody to be logged in can be made while the login is under way.
class FirstWindow {
 public:
  FirstWindow();
  /// A window that was not shown goes.
  ~FirstWindow();

  /// Makes the window's controls, and beside them what orders the names. A failure is reported only: Show
  /// meets it again.
  void Prepare();
  /// Forgets what was prepared: until somebody has logged in, the language may become another.
  void Drop();
  /// Shows the window of the login. From then on it belongs to itself: it destroys itself when it is closed.
  void Show();

 private:
  std::unique_ptr<frmSysAdmin> prepared_;
  std::future<void> order_;
};

}  // namespace mindloft
