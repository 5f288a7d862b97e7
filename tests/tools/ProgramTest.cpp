#include <gtest/gtest.h>

#include "platform/Paths.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::test {
namespace {

/// What the real program prints, and how it ends.
struct ProgramRun {
  explicit ProgramRun(const std::vector<std::string>& arguments) {
    ChildProcess program(ProgramBeside("mindloft-directory"), arguments);
    while (const auto line = program.ReadLine()) lines.push_back(line->substr(0, line->find('\r')));
    status = program.Wait();
  }
  std::vector<std::string> lines;
  int status = 0;
};

TEST(ProgramTest, TakesItsCommandLineAndGivesItsStatus) {
  const TemporaryFolder folder;
  const auto file = platform::PathToUtf8(folder.Path() / platform::PathFromUtf8("größe-字"));
  const ProgramRun sample({"sample", file, "--users=30", "--domains=1"});
  EXPECT_EQ(sample.status, 0);
  ASSERT_FALSE(sample.lines.empty());
  EXPECT_TRUE(sample.lines.front().starts_with("Created " + file)) << sample.lines.front();
  EXPECT_TRUE(sample.lines.back().starts_with("password: ")) << sample.lines.back();
  EXPECT_TRUE(std::filesystem::exists(platform::PathFromUtf8(file)));
  EXPECT_EQ(ProgramRun({"check", file}).status, 0);
  EXPECT_EQ(ProgramRun({"sample", file}).status, 1);
  EXPECT_EQ(ProgramRun({"info"}).status, 2);
}

}  // namespace
}  // namespace mindloft::test
