#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>

#include "platform/Printers.h"

namespace mindloft::platform {
namespace {

using testing::Contains;
using testing::Each;
using testing::Ne;

/// The real printer that scripts/with-printer.sh gives a test.
constexpr const char* kPrinter = "Mindloft-PDF";

class PrintersTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(std::getenv("MINDLOFT_PRINTED")) << "run it with scripts/with-printer.sh";
  }

  std::shared_ptr<Printers> printers_ = MakeSystemPrinters();
};

TEST_F(PrintersTest, ListsTheInstalledPrinterAsTheDefaultOne) {
  const auto installed = printers_->Installed();
  const auto found = std::find_if(installed.begin(), installed.end(),
                                  [](const InstalledPrinter& printer) { return printer.name == kPrinter; });
  ASSERT_NE(found, installed.end()) << installed.size() << " others";
  EXPECT_TRUE(found->isDefault);
  EXPECT_FALSE(found->port.empty());
}

TEST_F(PrintersTest, TellsItsPapersInTablesWithTheSameIndex) {
  for (const InstalledPrinter& printer : printers_->Installed()) {
    if (printer.name != kPrinter) continue;
    const PrinterPapers papers = printers_->Papers(printer);
    ASSERT_GT(papers.Count(), 10U);
    ASSERT_EQ(papers.names.size(), papers.Count());
    ASSERT_EQ(papers.numbers.size(), papers.Count());
    EXPECT_THAT(papers.numbers, Each(Ne(0)));
    const auto a4 = std::find(papers.names.begin(), papers.names.end(), "A4");
    ASSERT_NE(a4, papers.names.end());
    // Drivers that count points round.
    const PaperSize size = papers.sizes[static_cast<std::size_t>(a4 - papers.names.begin())];
    EXPECT_NEAR(size.width, 2100, 1);
    EXPECT_NEAR(size.height, 2970, 1);
    EXPECT_THAT(papers.numbers, Contains(papers.current));
    EXPECT_EQ(printers_->Papers(printer).numbers, papers.numbers) << "the numbers change";
    return;
  }
  FAIL() << "no such printer";
}

TEST_F(PrintersTest, HasNoPapersOfAPrinterThatIsNotThere) {
  for (const char* name : {"Not-There", "", "a/b/c", "\xC3\xA4\xE7\xBA\xB8"})
    EXPECT_TRUE(printers_->Papers({name, "LPT9:", false}).IsEmpty()) << name;
}

TEST_F(PrintersTest, AreReplacedByATestsOwnUntilTheyGo) {
  struct NoPrinters : Printers {
    std::vector<InstalledPrinter> Installed() override { return {}; }
    PrinterPapers Papers(const InstalledPrinter&) override { return {}; }
  };
  {
    const FakePrinters fake(std::make_shared<NoPrinters>());
    EXPECT_TRUE(GetPrinters()->Installed().empty());
  }
  EXPECT_FALSE(GetPrinters()->Installed().empty());
}

}  // namespace
}  // namespace mindloft::platform
