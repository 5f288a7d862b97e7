#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "backend/errors/Error.h"
#include "controls/bag/PropertyText.h"

namespace mindloft::test {
namespace {

template <typename Value>
ErrorNumber RefusalOf(const char* text) {
  try {
    PropertyText<Value>::Parse(wxString::FromUTF8(text));
  } catch (const Error& error) {
    return error.Number();
  }
  return ErrorNumber{};
}

TEST(PropertyTextTest, KeepsTheExtremesOfEachType) {
  for (const std::int16_t value :
       {std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()})
    EXPECT_EQ(PropertyText<std::int16_t>::Parse(PropertyText<std::int16_t>::Format(value)), value);
  for (const std::int32_t value :
       {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()})
    EXPECT_EQ(PropertyText<std::int32_t>::Parse(PropertyText<std::int32_t>::Format(value)), value);
  for (const std::uint32_t value : {0x80000005U, 0U, 0x00FFFFFFU, 0xFFFFFFFFU})
    EXPECT_EQ(PropertyText<ControlColour>::Parse(PropertyText<ControlColour>::Format(ControlColour(value))),
              ControlColour(value));
  EXPECT_EQ(PropertyText<ControlColour>::Parse("#102030"), ControlColour(0x00302010));
  EXPECT_TRUE(PropertyText<bool>::Parse("true"));
  EXPECT_TRUE(PropertyText<bool>::Parse("-1"));
  EXPECT_FALSE(PropertyText<bool>::Parse("0"));
}

TEST(PropertyTextTest, RefusesTextsOfAnotherType) {
  for (const char* text : {"", " 1", "1 ", "1.5", "+1", "0x10", "1e3", "\xEF\xBC\x91", "--1"}) {
    EXPECT_EQ(RefusalOf<std::int16_t>(text), ErrorNumber::TypeMismatch) << text;
    EXPECT_EQ(RefusalOf<std::int32_t>(text), ErrorNumber::TypeMismatch) << text;
  }
  EXPECT_EQ(RefusalOf<std::int16_t>("32768"), ErrorNumber::Overflow);
  EXPECT_EQ(RefusalOf<std::int32_t>("-2147483649"), ErrorNumber::Overflow);
  for (const char* text : {"", "True ", "yes", "2", "\xF0\x9F\x98\x80"})
    EXPECT_EQ(RefusalOf<bool>(text), ErrorNumber::TypeMismatch) << text;
  for (const char* text : {"", "&H", "&HXY", "#12345", "#GGGGGG", "red", "80000005", "&H-1"})
    EXPECT_EQ(RefusalOf<ControlColour>(text), ErrorNumber::TypeMismatch) << text;
  EXPECT_EQ(RefusalOf<ControlColour>("&H100000000"), ErrorNumber::Overflow);
}

TEST(PropertyTextTest, ColoursAreDrawnAsKept) {
  EXPECT_EQ(ControlColour(0x00302010).Resolve(), wxColour(0x10, 0x20, 0x30));
  EXPECT_EQ(kWindowColour.Resolve(), wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
  EXPECT_EQ(kButtonFaceColour.Resolve(), wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
  EXPECT_EQ(ControlColour(0x800000FF).Resolve(), *wxBLACK);
  EXPECT_EQ(ControlColour(0xFFFFFFFF).Resolve(), *wxBLACK);
}

}  // namespace
}  // namespace mindloft::test
