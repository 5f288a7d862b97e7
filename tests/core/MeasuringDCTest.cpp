#include <gtest/gtest.h>
#include <wx/dcclient.h>
#include <wx/frame.h>

#include "backend/tessaline/Text.h"
#include "platform/ui/MeasuringDC.h"

namespace mindloft::test {

TEST(MeasuringDCTest, MeasuresAsTheWindowDraws) {
  auto* frame = new wxFrame(nullptr, wxID_ANY, "measured");
  for (const bool shown : {false, true}) {
    frame->Show(shown);
    wxClientDC drawing(frame);
    const auto measuring = platform::MakeMeasuringDC(*frame);
    EXPECT_EQ(measuring->GetPPI(), drawing.GetPPI());
    for (const double scale : {1.0, 1.5}) {
      for (const int size : {8, 11, 24}) {
        const wxFont font(wxFontInfo(size).Bold(size == 11).Italic(size == 24));
        for (wxDC* dc : {static_cast<wxDC*>(&drawing), measuring.get()}) {
          dc->SetUserScale(scale, scale);
          dc->SetFont(font);
        }
        for (const char* utf8 : {"Knowledge of the whole house", "知识域", "office fi ffl", "\t", ""}) {
          const wxString text = ToWx(utf8);
          EXPECT_EQ(measuring->GetTextExtent(text), drawing.GetTextExtent(text)) << utf8 << size << scale;
          wxArrayInt measured, drawn;
          measuring->GetPartialTextExtents(text, measured);
          drawing.GetPartialTextExtents(text, drawn);
          EXPECT_EQ(std::vector(measured.begin(), measured.end()), std::vector(drawn.begin(), drawn.end()));
        }
        EXPECT_EQ(measuring->GetCharHeight(), drawing.GetCharHeight());
      }
    }
  }
  frame->Destroy();
}

}  // namespace mindloft::test
