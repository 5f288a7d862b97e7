#pragma once

#include <wx/app.h>

#include <memory>

#include "app/CommandLineOptions.h"
#include "core/Refresh.h"

namespace mindloft {

class EarlyLogin;
class frmHidden;

/// The process: sets up the toolkit, loads the hidden start-up form and runs until no window remains.
class ConsoleApp : public wxApp {
 public:
  ConsoleApp();
  ~ConsoleApp() override;

  bool Initialize(int& argc, wxChar** argv) override;
  bool OnInit() override;
  int OnRun() override;
  int OnExit() override;
  wxLayoutDirection GetLayoutDirection() const override;

  bool OnExceptionInMainLoop() override;
  void OnUnhandledException() override;
  void OnAssertFailure(const wxChar* file, int line, const wxChar* function, const wxChar* condition,
                       const wxChar* message) override;

 private:
  CommandLineOptions options_;
  std::unique_ptr<EarlyLogin> early_;
  std::unique_ptr<frmHidden> hidden_;
  Refresh::Subscription language_;
};

}  // namespace mindloft
