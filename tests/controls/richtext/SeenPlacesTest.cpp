#include <gtest/gtest.h>

#include <cstdlib>

#include "backend/tessaline/Text.h"
#include "controls/richtext/EditFormat.h"
#include "controls/richtext/TXControl.h"
#include "tests/controls/richtext/RichTextFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

// "salam": its letters stand from right to left.
constexpr const char* kArabic = "سلام";
constexpr const char* kMixed = "في Mindloft ثلاثة";

class SeenPlacesTest : public RichTextFixture {
 protected:
  void SetUp() override {
    RichTextFixture::SetUp();
    control_ = &Show(new TXControl(frame_));
  }
  void PutText(const char* utf8) {
    control_->SetText(ToWx(utf8));
    Settle();
  }
  wxPoint CaretPoint() const {
    const RichEditor& editor = control_->Editor();
    const wxPoint place = editor.GetCaret()->GetPosition();
    return wxRICHTEXT_USE_OWN_CARET ? editor.GetScaledPoint(place) : place;
  }
  int CaretX() const { return CaretPoint().x; }
  int XAt(long place) {
    control_->SetSelStart(place);
    return CaretX();
  }
  long ClickAt(int x) {
    RichEditor& editor = control_->Editor();
    for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_UP}) {
      wxMouseEvent event(type);
      event.SetEventObject(&editor);
      event.SetPosition({x, CaretPoint().y + 4});
      editor.HandleWindowEvent(event);
    }
    return control_->SelStart();
  }
};

TEST_F(SeenPlacesTest, TheCaretStandsWhereTheLettersRunTo) {
  PutText(kArabic);
  const int start = XAt(0);
  const int end = XAt(4);
  EXPECT_GT(start, end + 10) << "the beginning is on the right";
  for (const auto alignment : {wxTEXT_ALIGNMENT_LEFT, wxTEXT_ALIGNMENT_RIGHT}) {
    wxRichTextAttr format;
    format.SetAlignment(alignment);
    ApplyToParagraphs(control_->Editor(), format);
    for (const std::string text : {kArabic, kMixed}) {
      PutText(text.c_str());
      const long length = static_cast<long>(ToWx(text).length());
      for (long place = 0; place <= length; ++place) {
        const int x = XAt(place);
        const long clicked = ClickAt(x);
        // Where letters of both directions meet, two places may be seen at one.
        EXPECT_TRUE(clicked == place || text == kMixed) << text << place;
        EXPECT_EQ(CaretX(), x) << text << place;
      }
    }
  }
}

TEST_F(SeenPlacesTest, TheCaretIsSeenWhereTheMouseWas) {
  frame_->SetClientSize(420, 300);
  WaitFor([&] { return control_->Editor().GetClientSize().x <= 420; }, "the narrow editor");
  wxString text;
  for (int i = 0; i < 5; ++i)
    text += ToWx("تُدار المجالات من نافذة واحدة، وكل تغيير يُسجَّل في Mindloft 3.5 ويُرى. ");
  for (const int zoom : {100, 200}) {
    control_->SetText(text);
    control_->Zoom(static_cast<std::int16_t>(zoom));
    // A bold word makes the toolkit draw its line in three pieces.
    control_->SetSelStart(6);
    control_->SetSellength(8);
    Press('B', wxMOD_CONTROL);
    long seen = 0;
    long missed = 0;
    for (long place = 0; place < static_cast<long>(text.length()); place += 3) {
      const int x = XAt(place);
      if (x < 0) continue;  // outside the window
      ++seen;
      ClickAt(x);
      if (std::abs(CaretX() - x) > 2) ++missed;
    }
    // The toolkit looks for letters at their sizes without zoom, which may lead it to the next one.
    EXPECT_LE(missed, zoom == 100 ? 0 : seen / 10) << zoom;
    EXPECT_GT(seen, 30);
  }
}

TEST_F(SeenPlacesTest, ArrowsFollowTheLetters) {
  PutText(kArabic);
  control_->SetSelStart(0);
  const auto after = [&](int key) {
    Press(key);
    return control_->SelStart();
  };
  EXPECT_EQ(after(WXK_LEFT), 1);
  EXPECT_EQ(after(WXK_LEFT), 2);
  EXPECT_EQ(after(WXK_RIGHT), 1);
  PutText("abc");
  control_->SetSelStart(1);
  EXPECT_EQ(after(WXK_LEFT), 0);
  PutText((std::string(kArabic) + "\n" + kArabic).c_str());
  for (const long place : {0, 1, 4}) {
    control_->SetSelStart(place);
    EXPECT_EQ(after(WXK_DOWN), place + 5);
    EXPECT_EQ(after(WXK_UP), place);
  }
}

TEST_F(SeenPlacesTest, TypedTextGoesToWhereTheMouseWas) {
  PutText(kArabic);
  control_->SetSelStart(0);
  const int right = CaretX();
  control_->SetSelStart(4);
  ClickAt(right);
  Type("1");
  EXPECT_EQ(Text(), std::string("1") + kArabic);
  PutText("left to right");
  const int x = XAt(4);
  EXPECT_EQ(ClickAt(x), 4);
}

}  // namespace
}  // namespace mindloft::test
