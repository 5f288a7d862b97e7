#include "app/FirstWindow.h"

#include <wx/app.h>

#include "backend/directory/collation/Collator.h"
#include "backend/tessaline/Services.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"
#include "mainwindow/CommandLineState.h"
#include "mainwindow/frmSysAdmin.h"
#include "platform/Beside.h"

namespace mindloft {

FirstWindow::FirstWindow() = default;

FirstWindow::~FirstWindow() {
  // At the program's end the orders go before the thread that loads one.
  if (order_.valid()) order_.wait();
}

void FirstWindow::Prepare() try {
  // Who needs the order later meets what fails here.
  order_ = platform::Beside([rules = RulesOf(GetResource().CurrentLanguage())] { Collator::Of(rules); });
  prepared_ = std::make_unique<frmSysAdmin>();
} catch (...) {
  ReportOnly("FirstWindow", "Prepare");
}

void FirstWindow::Drop() {
  prepared_.reset();
}

void FirstWindow::Show() {
  // What fails here leaves no window.
  auto window = prepared_ ? std::move(prepared_) : std::make_unique<frmSysAdmin>();
  window->Load(GetConnection(), !GetStringHelper().IsBlank(SavedCommandLine()));
  wxTheApp->SetTopWindow(window.get());
  window.release()->Show();
}

}  // namespace mindloft
