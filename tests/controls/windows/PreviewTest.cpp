#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/print.h>

#include "controls/richtext/TextControl.h"
#include "tests/controls/richtext/RichTextFixture.h"
#include "tests/support/gui/FormLooks.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

/// The preview of pages, for the printer of scripts/with-printer.sh.
class PreviewTest : public RichTextFixture {};

TEST_F(PreviewTest, FitsInEveryLanguageAndNeverMirrorsThePages) {
  auto& control = Show(new TextControl(frame_));
  control.SetText("some words");
  InEveryLanguage([&] {
    control.PrintPreview();
    Settle();
    auto* window = dynamic_cast<wxTopLevelWindow*>(wxWindow::FindWindowByName("frmPreview"));
    ASSERT_TRUE(window);
    const auto& close = User(*window).Find<wxButton>("cmdClose");
    WaitFor([&] { return close.GetSize().y >= close.GetBestSize().y; }, "the bar's buttons");
    ExpectLooks(*window, 5);
    for (const wxWindow* part : window->GetChildren()) {
      const bool isPages = dynamic_cast<const wxPreviewCanvas*>(part) != nullptr;
      EXPECT_FALSE(isPages && part->GetLayoutDirection() == wxLayout_RightToLeft) << "mirrored pages";
    }
    User(*window).Click("cmdClose");
    WaitFor([] { return !wxWindow::FindWindowByName("frmPreview"); }, "the end of the preview");
  });
}

}  // namespace
}  // namespace mindloft::test
