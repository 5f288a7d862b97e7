#include <gtest/gtest.h>
#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/frame.h>
#include <wx/richtext/richtextctrl.h>

#include "backend/tessaline/Text.h"
#include "platform/ui/MeasuringDC.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

namespace {

/// Up to the end of each word the text must be as wide as that part of it is drawn; what lies between goes on
/// in the order of reading.
void ExpectPartsInOrder(const wxDC& measuring, const wxDC& drawing, const wxString& text) {
  constexpr int kRounding = 2;
  wxArrayInt ends;
  ASSERT_TRUE(measuring.GetPartialTextExtents(text, ends));
  ASSERT_EQ(ends.size(), text.length());
  int before = 0;
  for (std::size_t i = 0; i < ends.size(); ++i) {
    EXPECT_GE(ends[i], before) << ToUtf8(text) << i;
    before = ends[i];
    if (text[i] != ' ' && i + 1 < ends.size()) continue;
    EXPECT_NEAR(ends[i], drawing.GetTextExtent(text.Left(i + 1)).x, kRounding) << ToUtf8(text) << i;
  }
}

}  // namespace

TEST(MeasuringDCTest, ARichTextBoxMeasuresAsWindowsDraw) {
  auto* frame = new wxFrame(nullptr, wxID_ANY, "measured");
  auto* box = new wxRichTextCtrl(frame);
  for (const bool shown : {false, true}) {
    frame->Show(shown);
    wxClientDC drawing(frame);
    wxClientDC measuring(box);
    EXPECT_EQ(measuring.GetPPI(), drawing.GetPPI());
    for (const double scale : {1.0, 1.5}) {
      for (const int size : {8, 11, 24}) {
        const wxFont font(wxFontInfo(size).Bold(size == 11).Italic(size == 24));
        for (wxDC* dc : {&drawing, &measuring}) {
          dc->SetUserScale(scale, scale);
          dc->SetFont(font);
        }
        for (const char* utf8 : {"Knowledge of the whole house", "知识域", "office fi ffl", "\t", "",
                                 "لا شيء يضيع 123 ولا يُقتطع", "في Mindloft 1.5 من الخادم"}) {
          const wxString text = ToWx(utf8);
          EXPECT_EQ(measuring.GetTextExtent(text), drawing.GetTextExtent(text)) << utf8 << size << scale;
          if (!text.Contains("\t")) ExpectPartsInOrder(measuring, drawing, text);
        }
        EXPECT_EQ(measuring.GetCharHeight(), drawing.GetCharHeight());
      }
    }
  }
  frame->Destroy();
  Settle();
}

TEST(MeasuringDCTest, MeasuresAsThePageDraws) {
  wxBitmap paper(200, 100);
  wxMemoryDC page(paper);
  const auto measuring = platform::MakeMeasuringDC(page);
  if (!measuring) GTEST_SKIP() << "the page's own context measures rightly here";
  for (const double scale : {0.5, 6.25}) {
    measuring->SetUserScale(scale, scale);
    measuring->SetFont(wxFont(wxFontInfo(13)));
    EXPECT_EQ(page.GetFont(), measuring->GetFont());
    EXPECT_EQ(page.LogicalToDeviceXRel(100), measuring->LogicalToDeviceXRel(100));
    EXPECT_EQ(page.GetPPI(), measuring->GetPPI());
    EXPECT_EQ(page.GetSize(), measuring->GetSize());
    EXPECT_EQ(page.GetCharHeight(), measuring->GetCharHeight());
    for (const char* text : {"office fi ffl", "e\xCC\x81 and \xCC\x88", "لا شيء يضيع 123 ولا يُقتطع"})
      ExpectPartsInOrder(*measuring, page, ToWx(text));
  }
}

}  // namespace mindloft::test
