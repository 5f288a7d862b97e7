#include <gtest/gtest.h>
#include <wx/choice.h>

#include <cstdlib>

#include "controls/print/frmPageSetup.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

class RealPrinterTest : public PrivateServices {};

TEST_F(RealPrinterTest, ThePageSetupOffersThePapersOfAnInstalledPrinter) {
  ASSERT_TRUE(std::getenv("MINDLOFT_PRINTED")) << "run it with scripts/with-printer.sh";
  ModalDriver modal;
  modal.ExpectForm("frmPageSetup", [](User& user) {
    WaitFor([&] { return user.Read("cboPrinter") == "Mindloft-PDF"; }, "the printer");
    WaitFor([&] { return user.Read("cboPaper") == "A4"; }, "the paper of the page's size");
    user.Choose("cboPaper", "A3");
    user.Click("OptLandscape");
    user.Click("cmdOK");
  });
  frmPageSetup form(nullptr);
  EXPECT_TRUE(form.ShowPageSetup({}));
  EXPECT_EQ(form.GetPrinterName(), "Mindloft-PDF");
  EXPECT_EQ(form.GetPapersName(), "A3");
  EXPECT_NEAR(form.GetPaperWidth(), 4200, 3);
  EXPECT_NEAR(form.GetPaperHeight(), 2970, 3);
}

}  // namespace
}  // namespace mindloft::test
