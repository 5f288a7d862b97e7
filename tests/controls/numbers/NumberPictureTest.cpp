#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "backend/errors/Error.h"
#include "controls/numbers/NumberPicture.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {
namespace {

class NumberPictureTest : public PrivateServices {};

TEST_F(NumberPictureTest, FormatsAndReadsBack) {
  struct Case {
    const char* picture;
    double number;
    const char* text;
  };
  const Case cases[] = {
      {"", 1234.5, "1234.5"},
      {"  ", 7, "7"},
      {"###0", 0, "0"},
      {"###0", 12345, "12345"},
      {"###0", -7, "-7"},
      {"###0", -2147483648.0, "-2147483648"},
      {"0000", 42, "0042"},
      {"0##", 5, "005"},
      {"0.00", 2.5, "2.50"},
      {"0.0#", 2.5, "2.5"},
      {"0.##", 2, "2."},
      {".00", 12.25, "12.25"},
      {".00", 0.25, ".25"},
      {"#,##0", 999, "999"},
      {"#,##0", 1234567, "1,234,567"},
      {"#,##0.00", -1234.5, "-1,234.50"},
      {"000,000", 1234, "001,234"},
      {"0%", 0.5, "50%"},
      {"0.0%", 1, "100.0%"},
      {"0 \"kg\"", 12, "12 kg"},
      {"\"a;b\"0", 3, "a;b3"},
      {"\\#0", 3, "#3"},
      {"\"5\"0", 3, "53"},
      {"$0.00", -5, "-$5.00"},
      {"0;(0)", -5, "(5)"},
      {"0;(0);\"none\"", 0, "none"},
      {"0;;\"none\"", -5, "-5"},
      {"0.0;-0.0", -1.25, "-1.3"},
      {"#,##0,", 1234567, "1,235"},
      {"0,,", 3000000, "3"},
  };
  for (const Case& each : cases) {
    const NumberPicture picture(each.picture);
    const wxString text = picture.Format(each.number);
    EXPECT_EQ(text, wxString(each.text)) << each.picture;
    // What is shown is a number again, and stays as it is.
    const auto read = picture.Read(text);
    ASSERT_TRUE(read) << each.picture << " " << each.text;
    EXPECT_EQ(picture.Format(*read), text) << each.picture;
  }
}

TEST_F(NumberPictureTest, RoundsHalvesAwayFromZero) {
  struct Case {
    const char* picture;
    double number;
    const char* text;
  };
  const Case cases[] = {
      {"0", 0.5, "1"},
      {"0", 1.5, "2"},
      {"0", 2.5, "3"},
      {"0", -2.5, "-3"},
      {"0", 0.49, "0"},
      {"0", -0.4, "0"},
      {"0.00", 1.005, "1.01"},
      {"0.00", 0.995, "1.00"},
      {"0.00", -0.004, "0.00"},
      {"0", 999.5, "1000"},
      {"#,##0", 999999.5, "1,000,000"},
      {"#", 0, ""},
      {"0.0", 0.05, "0.1"},
      {"0.0", 0.04999, "0.0"},
      {"0.00", 1e-320, "0.00"},
      {"0%", 0.005, "1%"},
  };
  for (const Case& each : cases)
    EXPECT_EQ(NumberPicture(each.picture).Format(each.number), each.text)
        << each.picture << " " << each.number;
}

TEST_F(NumberPictureTest, NoPictureAndNoNumberIsTooOdd) {
  const double numbers[] = {0,   -0.0, 1e308, -1e308, 5e-324, std::numeric_limits<double>::infinity(),
                            NAN, 0.1,  -1e15};
  for (const char* picture : {"%0%%%", "0,", "0.0.0", "#;#;#;#", "0\"", "0;", "0;;", "0;\\", "0,0,0,",
                              "\xF0\x9F\x98\x80"
                              "0",
                              "000-0000", "(0", "0)", "#", ".#"}) {
    const NumberPicture made(wxString::FromUTF8(picture));
    for (const double number : numbers) {
      const wxString text = made.Format(number);
      EXPECT_EQ(std::isfinite(number) || text.empty(), true) << picture;
      made.Read(text);
    }
    made.Read(wxString());
    EXPECT_EQ(made.Text(), wxString::FromUTF8(picture));
  }
  for (const char* picture : {";", ";0", "True", "\"0\"", "\\0", "%", ",", "."})
    EXPECT_THROW(NumberPicture(wxString::FromUTF8(picture)), Error) << picture;
  EXPECT_EQ(NumberPicture("000-0000").Format(5551234), "555-1234");
}

}  // namespace
}  // namespace mindloft::test
