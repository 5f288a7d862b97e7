#pragma once

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "controls/print/frmPageSetup.h"
#include "platform/Printers.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {

/// Printers of a test's own. They are asked on another thread.
class TestPrinters : public platform::Printers {
 public:
  void Add(const std::string& name, platform::PrinterPapers papers, bool isDefault = false);
  /// As one that is taken away while somebody looks at it.
  void Remove(const std::string& name);
  /// From now on nothing is answered until Release.
  void Hold();
  void Release();

  std::vector<platform::InstalledPrinter> Installed() override;
  platform::PrinterPapers Papers(const platform::InstalledPrinter& printer) override;

 private:
  std::mutex mutex_;
  std::condition_variable released_;
  bool isHeld_ = false;
  std::vector<platform::InstalledPrinter> installed_;
  std::map<std::string, platform::PrinterPapers> papers_;
};

/// A page setup in front of a user, on printers of the test's own: "Office" with A4, A5 and Letter (its
/// current paper), "Labels" with one label, "Mute" without papers. "Office" is the default one.
class PrintFixture : public PrivateServices {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Shows the page setup with the settings to the script, which closes it; whether OK was pressed.
  bool Show(const PageSettings& settings, const ModalDriver::Script& script);

  std::shared_ptr<TestPrinters> printers_;
  std::unique_ptr<platform::FakePrinters> fake_;
  PageSettings chosen_;  ///< the dialog's settings after Show
};

platform::PrinterPapers OfficePapers();

}  // namespace mindloft::test
