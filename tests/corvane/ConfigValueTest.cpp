#include <gtest/gtest.h>

#include <optional>

#include "backend/corvane/ConfigValue.h"
#include "backend/errors/Error.h"

namespace mindloft::test {
namespace {

using Corvane::ConfigValue;

/// The result as text; the error's number when there is one.
template <typename Result>
std::string Converted(const std::string& text, Result (ConfigValue::*convert)() const) {
  try {
    return std::to_string((ConfigValue(text).*convert)());
  } catch (const Error& error) {
    return error.Number() == ErrorNumber::Overflow ? "overflow" : "mismatch";
  }
}

TEST(ConfigValueTest, Numbers) {
  struct Case {
    const char *text, *asInteger, *asLong;
  };
  for (const auto& [text, asInteger, asLong] : {Case{"0", "0", "0"},
                                                Case{" -12 ", "-12", "-12"},
                                                Case{"+7", "7", "7"},
                                                Case{"2.5", "2", "2"},
                                                Case{"3.5", "4", "4"},
                                                Case{"1e3", "1000", "1000"},
                                                Case{"32767", "32767", "32767"},
                                                Case{"32767.4", "32767", "32767"},
                                                Case{"32768", "overflow", "32768"},
                                                Case{"-32769", "overflow", "-32769"},
                                                Case{"2147483647", "overflow", "2147483647"},
                                                Case{"-2147483649", "overflow", "overflow"},
                                                Case{"1e400", "overflow", "overflow"},
                                                Case{"1e-400", "0", "0"},
                                                Case{"", "mismatch", "mismatch"},
                                                Case{"12a", "mismatch", "mismatch"},
                                                Case{"1,5", "mismatch", "mismatch"},
                                                Case{"nan", "mismatch", "mismatch"},
                                                Case{"inf", "mismatch", "mismatch"},
                                                Case{"0x10", "mismatch", "mismatch"},
                                                Case{"+-1", "mismatch", "mismatch"},
                                                Case{"1 2", "mismatch", "mismatch"},
                                                Case{"True", "mismatch", "mismatch"}}) {
    EXPECT_EQ(Converted(text, &ConfigValue::AsInteger), asInteger) << text;
    EXPECT_EQ(Converted(text, &ConfigValue::AsLong), asLong) << text;
  }
}

TEST(ConfigValueTest, Singles) {
  EXPECT_EQ(ConfigValue("0.1").AsSingle(), 0.1f);
  EXPECT_EQ(ConfigValue("3.4028235e38").AsSingle(), 3.4028235e38f);
  EXPECT_EQ(ConfigValue("1e-60").AsSingle(), 0.0f);
  EXPECT_EQ(Converted("1e39", &ConfigValue::AsSingle), "overflow");
  EXPECT_EQ(Converted("-1e999", &ConfigValue::AsSingle), "overflow");
  EXPECT_EQ(Converted("one", &ConfigValue::AsSingle), "mismatch");
}

TEST(ConfigValueTest, Booleans) {
  for (const char* text : {"True", "TRUE", " true ", "1", "-1", "0.5"})
    EXPECT_TRUE(ConfigValue(text).AsBoolean());
  for (const char* text : {"False", "fALSE", "0", "0.0", "-0"}) EXPECT_FALSE(ConfigValue(text).AsBoolean());
  for (const char* text : {"", "yes", "truer", "1x"}) {
    EXPECT_EQ(Converted(text, &ConfigValue::AsBoolean), "mismatch") << text;
  }
}

TEST(ConfigValueTest, Dates) {
  struct Case {
    const char* text;
    const char* milliseconds;
  };
  for (const auto& [text, milliseconds] :
       {Case{"1970-01-01", "0"}, Case{"2024-02-29", "1709164800000"},
        Case{"2024-02-29T12:30", "1709209800000"}, Case{"2024-02-29 12:30:15", "1709209815000"},
        Case{"2024-02-29T12:30:15.250", "1709209815250"}, Case{"1899-12-30", "-2209161600000"},
        Case{"2023-02-29", "mismatch"}, Case{"2024-13-01", "mismatch"}, Case{"2024-1-1", "mismatch"},
        Case{"2024-01-01T24:00", "mismatch"}, Case{"2024-01-01T", "mismatch"},
        Case{"2024-01-01T10:00Z", "mismatch"}, Case{"2024-01-01x", "mismatch"},
        Case{"-024-01-01", "mismatch"}, Case{"", "mismatch"}}) {
    EXPECT_EQ(Converted(text, &ConfigValue::AsDate), milliseconds) << text;
  }
}

}  // namespace
}  // namespace mindloft::test
