#include "controls/buttons/ButtonCaption.h"
#include "tests/controls/bag/RoundTrip.h"
#include "tests/controls/buttons/ButtonFixture.h"

namespace mindloft::test {

class MyButtonPropertiesTest : public PrivateServices {};

TEST_F(MyButtonPropertiesTest, AreKept) {
  ExpectDefaults<MyButton>("MyButton", {{"BackColor", "&H8000000F"},
                                        {"ForeColor", "&H80000012"},
                                        {"ShowFocusRect", "True"},
                                        {"ShowBorderOnFocus", "True"},
                                        {"Caption", "ctlTried"},
                                        {"PicturePosition", "1"},
                                        {"Picture", ""},
                                        {"PictureWidth", "32"},
                                        {"PictureHeight", "32"},
                                        {"PictureSize", "1"},
                                        {"Font", ""},
                                        {"PictureHover", ""},
                                        {"MouseIcon", ""},
                                        {"MousePointer", "0"},
                                        {"Enabled", "True"},
                                        {"Raised", "0"},
                                        {"BorderEdged", "0"},
                                        {"BorderEdgedColor", "&H8000000F"},
                                        {"URL", ""},
                                        {"XPStyle", "0"},
                                        {"XPColor_Pressed", "&H80000014"},
                                        {"XPColor_Hover", "&H80000016"},
                                        {"XPDefaultColors", "1"},
                                        {"SoundOver", ".\\resources\\over.wav"},
                                        {"SoundClick", ".\\resources\\click.wav"},
                                        {"Locked", "False"}});
  ExpectRoundTrips<MyButton>("MyButton", {"user", "Sans, 14.5, Bold, Italic"});
  ExpectRefusals("MyButton", "ShowFocusRect");
  using testing::HasSubstr;
  EXPECT_THAT(RefusalOf("MyButton", "<Picture>nosuch</Picture>"), HasSubstr("nosuch"));
  EXPECT_THAT(RefusalOf("MyButton", "<PictureWidth>32768</PictureWidth>"), HasSubstr("PictureWidth"));
}

TEST_F(MyButtonPropertiesTest, FontsStandInReadableTexts) {
  for (const char* text :
       {"Segoe UI, 9.75, Bold, Italic, Underline, Strikethrough", "Sans, 12", "A, B, 8, Weight 300"})
    EXPECT_EQ(PropertyText<wxFont>::Format(PropertyText<wxFont>::Parse(text)), text);
  for (const char* text :
       {"Sans", "Sans, Bold", ", 12", "Sans, 0", "Sans, 1e9", "Sans, 12, Bald", "Sans, 12, Weight 0"})
    EXPECT_THROW(PropertyText<wxFont>::Parse(text), Error) << text;
}

TEST_F(MyButtonPropertiesTest, ColoursAreSplitIntoTheirBytes) {
  ControlForm form("MyButton", wxString());
  auto& button = form.Get<MyButton>();
  const auto [red, green, blue] = button.ConvertRGB(ControlColour(0x00C08001));
  EXPECT_EQ((std::array{red, green, blue}), (std::array{1, 128, 192}));
  EXPECT_EQ(button.RgbText(), "RGB(1, 128, 192)");
}

TEST_F(MyButtonPropertiesTest, CaptionsMarkAccessKeys) {
  const struct {
    const char* marked;
    const char* text;
    const char* keys;
    int underlined;
  } cases[] = {
      {"", "", "", -1},           {"Save", "Save", "", -1},
      {"&Save", "Save", "S", 0},  {"A && &b", "A & b", "B", 4},
      {"&a&b&A", "abA", "AB", 0}, {"end&", "end", "", -1},
      {"&&&c", "&c", "C", 1},
  };
  for (const auto& each : cases) {
    const ButtonCaption caption(each.marked);
    EXPECT_EQ(caption.text, each.text) << each.marked;
    EXPECT_EQ(caption.accessKeys, each.keys) << each.marked;
    EXPECT_EQ(caption.underlined, each.underlined) << each.marked;
  }
}

TEST_F(MyButtonPropertiesTest, FollowTheToolkitsNames) {
  ControlForm form("MyButton", "<Caption>&amp;Save</Caption><Raised>1</Raised>");
  auto& button = form.Get<MyButton>();
  EXPECT_EQ(button.GetLabel(), "&Save");
  EXPECT_EQ(button.RAISED(), 1);
  button.SetLabel("E&xit");
  EXPECT_EQ(button.Caption(), "E&xit");
  EXPECT_EQ(button.AccessKeys(), "X");
  EXPECT_TRUE(button.ArePropertiesChanged());
  EXPECT_EQ(button.hWnd(), platform::HandleOf(&button));
  EXPECT_FALSE(button.version().empty());
}

}  // namespace mindloft::test
