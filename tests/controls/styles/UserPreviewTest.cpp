#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/dcclient.h>
#include <wx/frame.h>
#include <wx/sizer.h>

#include "backend/corvane/Style.h"
#include "controls/styles/PreviewBox.h"
#include "controls/styles/ShowStyle.h"
#include "controls/styles/StyleFont.h"
#include "controls/styles/UserPreview.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using Corvane::StyleFormat;

class UserPreviewTest : public PrivateServices {
 protected:
  void SetUp() override {
    PrivateServices::SetUp();
    frame_ = new wxFrame(nullptr, wxID_ANY, "preview", wxDefaultPosition, wxSize(500, 300));
    preview_ = new UserPreview(frame_);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(preview_, wxSizerFlags(1).Expand());
    frame_->SetSizer(sizer);
    frame_->Show();
    WaitFor([&] { return frame_->IsShownOnScreen(); }, "the frame");
  }
  void TearDown() override {
    frame_->Destroy();
    Settle();
    PrivateServices::TearDown();
  }
  static std::shared_ptr<Corvane::Style> StyleOf(const StyleFormat& format) {
    auto style = std::make_shared<Corvane::Style>(nullptr, StyleRecord());
    style->SetName("Test");
    style->SetFormat(format);
    return style;
  }
  PreviewBox& Box() const {
    return *dynamic_cast<PreviewBox*>(wxWindow::FindWindowByName("picPreview", frame_));
  }
  wxRichTextAttr At(long place) const {
    wxRichTextAttr attributes;
    Box().GetStyle(place, attributes);
    return attributes;
  }

  wxFrame* frame_ = nullptr;
  UserPreview* preview_ = nullptr;
  ModalDriver modal_;
};

TEST_F(UserPreviewTest, DrawsTheTextWithEveryAttributeOfTheStyle) {
  preview_->SetPreviewText("first\r\nsecond\r\n\r\nlast");
  preview_->Preview(StyleOf({.fontName = "serif",
                             .fontSize = 17,
                             .bold = true,
                             .italic = true,
                             .underline = true,
                             .strikeThrough = true,
                             .colour = "#123456",
                             .alignment = StyleFormat::AlignCentred,
                             .leftIndent = "4",
                             .rightIndent = "3",
                             .firstLineIndent = "2",
                             .spaceBefore = "1",
                             .spaceAfter = "2",
                             .background = "#abcdef"}));
  EXPECT_EQ(Box().GetValue(), "first\nsecond\n\nlast");
  const int width = preview_->GetFontWidth(), height = preview_->GetFontHeight();
  ASSERT_GT(width, 0);
  ASSERT_GT(height, width);
  for (const long place : {0L, 8L, 17L}) {
    SCOPED_TRACE(place);
    const auto look = At(place);
    EXPECT_EQ(look.GetFontFaceName(), FaceOfStyleFont("serif").value());
    EXPECT_EQ(look.GetFontSize(), 17);
    EXPECT_EQ(look.GetFontWeight(), wxFONTWEIGHT_BOLD);
    EXPECT_EQ(look.GetFontStyle(), wxFONTSTYLE_ITALIC);
    EXPECT_TRUE(look.GetFontUnderlined());
    EXPECT_TRUE(look.GetTextEffects() & wxTEXT_ATTR_EFFECT_STRIKETHROUGH);
    EXPECT_EQ(look.GetTextColour(), wxColour("#123456"));
    EXPECT_EQ(look.GetAlignment(), wxTEXT_ALIGNMENT_CENTRE);
    EXPECT_EQ(look.GetLeftIndent(), 6 * width);
    EXPECT_EQ(look.GetLeftSubIndent(), -2 * width);
    EXPECT_EQ(look.GetRightIndent(), 3 * width);
    EXPECT_EQ(look.GetParagraphSpacingBefore(), height);
    EXPECT_EQ(look.GetParagraphSpacingAfter(), 2 * height);
  }
  EXPECT_EQ(Box().GetBackgroundColour(), wxColour("#abcdef"));
  EXPECT_FALSE(Box().IsEditable());

  // The next style starts from nothing; its last value is none.
  preview_->Preview(StyleOf({.fontName = "monospace", .leftIndent = "2", .firstLineIndent = "-9"}));
  const auto look = At(0);
  EXPECT_EQ(look.GetFontWeight(), wxFONTWEIGHT_NORMAL);
  EXPECT_FALSE(look.GetTextEffects() & wxTEXT_ATTR_EFFECT_STRIKETHROUGH);
  EXPECT_EQ(look.GetAlignment(), wxTEXT_ALIGNMENT_LEFT);
  EXPECT_EQ(look.GetLeftIndent(), 0) << "not beyond the edge";
  EXPECT_EQ(look.GetLeftIndent() + look.GetLeftSubIndent(), 2 * preview_->GetFontWidth());
  EXPECT_EQ(Box().GetBackgroundColour(), wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
  preview_->Preview(StyleOf({.alignment = StyleFormat::AlignRight, .background = "no colour"}));
  EXPECT_EQ(At(0).GetAlignment(), wxTEXT_ALIGNMENT_RIGHT);
  preview_->Preview(nullptr);
  EXPECT_EQ(Box().GetValue(), "");
}

TEST_F(UserPreviewTest, AFontThatIsNotInstalledIsToldAndNothingIsDrawn) {
  preview_->SetPreviewText("text");
  preview_->Preview(StyleOf({.fontName = "sans-serif", .background = "#ff0000"}));
  modal_.ExpectMessage(61950, wxID_OK);
  preview_->Preview(StyleOf({.fontName = "No Such Font 4711", .background = "#00ff00"}));
  EXPECT_EQ(Box().GetValue(), "");
  EXPECT_EQ(preview_->PreviewText(), "text");
  EXPECT_EQ(Box().GetBackgroundColour(), wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));

  for (const char* known : {"", "sans-serif", "serif", "monospace"})
    EXPECT_FALSE(FaceOfStyleFont(known).value().empty()) << known;
  EXPECT_FALSE(FaceOfStyleFont("No Such Font 4711"));
  const auto fonts = StyleFonts();
  ASSERT_GT(fonts.size(), 3u);
  EXPECT_TRUE(FaceOfStyleFont(fonts.back()));
}

TEST_F(UserPreviewTest, EachStyleIsLaidOutAnew) {
  preview_->SetPreviewText("one line\r\nand another");
  const auto place = [this](long position) {
    Settle();
    return Box().GetBuffer().GetLineAtPosition(position)->GetAbsolutePosition();
  };
  preview_->Preview(StyleOf({.fontSize = 8}));
  const wxPoint first = place(0), second = place(9);
  preview_->Preview(StyleOf({.fontSize = 24, .leftIndent = "5", .spaceAfter = "2"}));
  EXPECT_GT(place(0).x, first.x + 20);
  EXPECT_GT(place(9).y - place(0).y, 3 * (second.y - first.y));
}

TEST_F(UserPreviewTest, NumericTextsBecomeIntegers) {
  for (const auto& [text, expected] : {std::pair{"", 0},
                                       {"7", 7},
                                       {"-3", -3},
                                       {" 4 ", 4},
                                       {"2.5", 2},
                                       {"3.5", 4},
                                       {"many", 0},
                                       {"99999", 0}})
    EXPECT_EQ(UserPreview::GetIntValue(text), expected) << text;
  // Larger letters are wider and higher.
  preview_->Preview(StyleOf({.fontSize = 8}));
  const int width = preview_->GetFontWidth(), height = preview_->GetFontHeight();
  preview_->Preview(StyleOf({.fontSize = 32}));
  EXPECT_GT(preview_->GetFontWidth(), 3 * width);
  EXPECT_GT(preview_->GetFontHeight(), 3 * height);
}

TEST_F(UserPreviewTest, ShowsTheSampleOrTheLanguagesAndTellsOfDamage) {
  ShowStyle(*preview_, StyleOf({.sample = "one\ntwo\r\nthree"}));
  EXPECT_EQ(preview_->PreviewText(), "one\r\ntwo\r\nthree");
  EXPECT_EQ(Box().GetValue(), "one\ntwo\nthree");
  ShowStyle(*preview_, StyleOf({}));
  EXPECT_TRUE(Box().GetValue().StartsWith("This is how")) << Box().GetValue();
  EXPECT_EQ(Box().GetNumberOfLines(), 2);

  auto damaged = StyleOf({});
  damaged->SetDefinition("<style size=\"-1\" sample=\"kept\">");
  modal_.ExpectMessage(61951, wxID_OK);
  ShowStyle(*preview_, damaged);
  EXPECT_TRUE(Box().GetValue().StartsWith("This is how"));
  EXPECT_THAT(LoggedText(), testing::HasSubstr("style "));
  ShowStyle(*preview_, nullptr);
  EXPECT_EQ(Box().GetValue(), "");
  EXPECT_EQ(preview_->PreviewText(), "");
}

TEST_F(UserPreviewTest, TheTextIsItsOneKeptProperty) {
  EXPECT_FALSE(preview_->ArePropertiesChanged());
  preview_->SetPreviewText("kept");
  EXPECT_TRUE(preview_->ArePropertiesChanged());
  const auto bag = preview_->WriteProperties();
  ASSERT_EQ(bag.Entries().size(), 1u);
  EXPECT_EQ(*bag.Find("PreviewText"), "kept");
  preview_->ReadProperties({});
  EXPECT_EQ(preview_->PreviewText(), "");
}

}  // namespace mindloft::test
