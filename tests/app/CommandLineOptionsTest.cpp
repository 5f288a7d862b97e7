#include <gtest/gtest.h>

#include "app/CommandLineOptions.h"
#include "backend/tessaline/Text.h"
#include "platform/Paths.h"

namespace mindloft::test {
namespace {

TEST(CommandLineOptionsTest, OptionsAndTheNodesNameAreToldApart) {
  struct Case {
    std::vector<wxString> arguments;
    const char *node, *file;
    bool missing = false, help = false, version = false;
  };
  const Case cases[] = {
      {{}, "", ""},
      {{"Knowledge", "domains"}, "Knowledge domains", ""},
      {{"--directory", "a b", "Users"}, "Users", "a b"},
      {{"Users", "--directory=x"}, "Users", "x"},
      {{"--directory=x", "--directory", "y"}, "", "y"},
      {{"--directory"}, "", "", true},
      {{"--directory="}, "", "", true},
      {{"--directory", ""}, "", "", true},
      // The file of an option is never an option.
      {{"--directory", "--help"}, "", "--help"},
      {{"--help", "Users"}, "Users", "", false, true},
      {{"--version"}, "", "", false, false, true},
      {{"--", "--help", "--", "--directory"}, "--help -- --directory", ""},
      {{"--helpless", "-h", "--directories=x"}, "--helpless -h --directories=x", ""},
      {{"", "a", ""}, "a ", ""},
      {{wxString::FromUTF8("Отдел"), wxString::FromUTF8("知识")}, "Отдел 知识", ""},
  };
  for (const auto& one : cases) {
    const auto options = CommandLineOptions::Parse(one.arguments);
    EXPECT_EQ(ToUtf8(options.nodeName), one.node) << &one - cases;
    const auto file = *one.file ? std::filesystem::absolute(platform::PathFromUtf8(one.file)) : "";
    EXPECT_EQ(options.directoryFile, file) << &one - cases;
    EXPECT_EQ(options.directoryIsMissing, one.missing) << &one - cases;
    EXPECT_EQ(options.help, one.help) << &one - cases;
    EXPECT_EQ(options.version, one.version) << &one - cases;
  }
}

}  // namespace
}  // namespace mindloft::test
