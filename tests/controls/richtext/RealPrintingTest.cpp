#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
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

constexpr const char* kDocument =
    "<h1>Head of the page</h1><ol><li>first<li>second</ol>"
    "<table><tr><td style=\"border:1px solid #000000\">a cell</td><td>another</td></tr></table>";

/// What a job of PostScript tells of itself.
struct Job {
  int pages = 0;
  int width = 0, height = 0;  ///< points; drivers round differently
};

Job JobOf(const std::string& text) {
  Job job;
  // The first lines leave it to the last ones.
  const auto trailer = text.rfind("\n%%Trailer");
  const auto from = [&](const char* comment) {
    const auto last = text.find(comment, trailer), first = text.find(comment);
    return text.c_str() + std::min(last != std::string::npos ? last : first, text.size());
  };
  std::sscanf(from("%%Pages:"), "%%%%Pages: %d", &job.pages);
  std::sscanf(from("%%BoundingBox:"), "%%%%BoundingBox: 0 0 %d %d", &job.width, &job.height);
  return job;
}

/// Prints on the printer of scripts/with-printer.sh.
class RealPrintingTest : public RichTextFixture {
 protected:
  /// What came to the printer, as soon as that is whole.
  Job Print(const PageSettings& page) {
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
    return JobOf(job);
  }
};

TEST_F(RealPrintingTest, ADocumentComesOutOnItsPaper) {
  auto& control = Show(new TextControl(frame_));
  control.Content().LoadHtml(kDocument);
  PageSettings page;
  page.printerName = "Mindloft-PDF";
  const Job usual = Print(page);
  EXPECT_EQ(usual.pages, 1);
  EXPECT_NEAR(usual.width, 595, 1);
  EXPECT_NEAR(usual.height, 842, 1);
  wxString many;
  for (int i = 0; i < 80; ++i) many << "line\n";
  control.SetText(many);
  page.paperWidth = 1480;
  page.paperHeight = 2100;
  // 170 mm hold some 40 lines, a few more or less of each desktop's default font.
  const Job small = Print(page);
  EXPECT_GE(small.pages, 2);
  EXPECT_LE(small.pages, 3);
  EXPECT_NEAR(small.width, 420, 1);
  EXPECT_NEAR(small.height, 595, 1);
}

}  // namespace
}  // namespace mindloft::test
