#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

#include "backend/tessaline/Text.h"
#include "platform/Paths.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {
namespace {

class LanguageHelpTest : public PrivateServices {};

/// The chapters, paragraphs, items and rows of a page, in their order.
std::vector<std::string> Skeleton(const std::string& page) {
  static const std::regex part("<h2 id=\"[a-z]+\"|<a href=\"#[a-z]+\"|<p>|<li>|<tr>");
  std::vector<std::string> parts;
  for (std::sregex_iterator at(page.begin(), page.end(), part), end; at != end; ++at)
    parts.push_back(at->str());
  return parts;
}

TEST_F(LanguageHelpTest, EveryLanguagesPageHasTheSameChaptersAndParagraphs) {
  std::vector<std::string> english;
  for (const int code : GetResource().Languages()) {
    ASSERT_TRUE(GetResource().SwitchLanguage(code));
    const auto file =
        LanguageFolder().parent_path() / platform::PathFromUtf8(ToUtf8(GetResource().GetString(49063)));
    std::ifstream stream(file, std::ios::binary);
    const std::string page{std::istreambuf_iterator<char>(stream), {}};
    const auto parts = Skeleton(page);
    if (english.empty()) english = parts;
    EXPECT_GE(parts.size(), 40u) << file;
    EXPECT_EQ(parts, english) << file;
    EXPECT_EQ(page.find("dir=\"rtl\"") != std::string::npos, GetResource().IsRightToLeft()) << file;
  }
}

}  // namespace
}  // namespace mindloft::test
