#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "controls/richtext/DocumentPrinting.h"
#include "controls/richtext/TextControl.h"
#include "platform/FileAccess.h"
#include "tests/controls/richtext/RichTextFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;

constexpr const char* kDocument =
    "<h1>Head of the page</h1><ol><li>first<li>second</ol>"
    "<table><tr><td style=\"border:1px solid #000000\">a cell</td><td>another</td></tr></table>";

/// Prints on the printer of scripts/with-printer.sh.
class RealPrintingTest : public RichTextFixture {
 protected:
  /// What came to the printer, as soon as that is whole.
  std::string Print(const PageSettings& page) {
    const char* printed = std::getenv("MINDLOFT_PRINTED");
    if (!printed) throw std::runtime_error("run it with scripts/with-printer.sh");
    std::filesystem::remove(printed);
    DocumentPrinting(*frame_, page).Print(control_->Editor().GetBuffer(), false);
    std::string job;
    WaitFor(
        [&] {
          job = platform::ReadWholeFile(printed).value_or("");
          const auto trailer = job.find("\n%%Trailer");
          return trailer != std::string::npos && job.find("%%EOF", trailer) != std::string::npos;
        },
        "the print job");
    return job;
  }
};

TEST_F(RealPrintingTest, ADocumentComesOutOnItsPaper) {
  auto& control = Show(new TextControl(frame_));
  control.Content().LoadHtml(kDocument);
  PageSettings page;
  page.printerName = "Mindloft-PDF";
  EXPECT_THAT(Print(page), AllOf(HasSubstr("%%Pages: 1"), HasSubstr("%%BoundingBox: 0 0 595 842")));
  wxString many;
  for (int i = 0; i < 80; ++i) many << "line\n";
  control.SetText(many);
  page.paperWidth = 1480;
  page.paperHeight = 2100;
  // 170 mm hold some 40 lines of the default font.
  EXPECT_THAT(Print(page), AllOf(HasSubstr("%%Pages: 3"), HasSubstr("%%BoundingBox: 0 0 42")));
}

}  // namespace
}  // namespace mindloft::test
