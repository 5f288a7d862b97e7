#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "backend/directory/SqliteDirectory.h"
#include "backend/errors/Error.h"
#include "platform/Paths.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/ToolRun.h"

namespace mindloft::test {
namespace {

using testing::HasSubstr;

class DirectoryToolTest : public testing::Test {
 protected:
  std::string File(const std::string& name) const {
    return platform::PathToUtf8(folder_.Path() / platform::PathFromUtf8(name));
  }
  std::string Content(const std::string& name) const {
    std::ifstream file(platform::PathFromUtf8(File(name)), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  void Write(const std::string& name, const std::string& content) const {
    std::ofstream(platform::PathFromUtf8(File(name)), std::ios::binary) << content;
  }
  std::size_t FilesThere() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder_.Path()), {}));
  }
  bool CanLogIn(const std::string& name, const std::string& user, const std::string& password) const {
    try {
      SqliteDirectory::Open(platform::PathFromUtf8(File(name)))->Login(user, password);
      return true;
    } catch (const Error&) {
      return false;
    }
  }

  TemporaryFolder folder_;
};

TEST_F(DirectoryToolTest, CommandLinesThatCannotBeUnderstood) {
  struct Case {
    std::vector<std::string> arguments;
    const char* sentence;
  };
  const auto file = File("new");
  const std::vector<Case> cases = {
      {{}, "A command is missing."},
      {{"remove", file}, "There is no command remove."},
      {{"info"}, "The name of the directory file is missing."},
      {{"info", ""}, "The name of the directory file is empty."},
      {{"info", file, "more"}, "There is one argument too many: more"},
      {{"info", "--users", "3", file}, "There is no option --users."},
      {{"sample", file, "--users"}, "The option --users needs a value."},
      {{"sample", file, "--users", "0"}, "from 1 to 10000000, not \"0\"."},
      {{"sample", file, "--users", "-5"}, "not \"-5\"."},
      {{"sample", file, "--users=1e6"}, "not \"1e6\"."},
      {{"sample", file, "--domains", "99999999999999999999999"}, "needs a whole number"},
      {{"sample", file, "--groups", ""}, "needs a whole number"},
      {{"sample", file, "--seed", "18446744073709551616"}, "needs a whole number"},
      {{"sample", file, "--seed", "1", "--seed", "2"}, "The option --seed is given twice."},
      {{"sample", file, "--force=yes"}, "The option --force takes no value."},
      {{"create", file}, "Nobody answered at the terminal; --name"},
      {{"create", file, "--name", "x", "--password-stdin"}, "There is no password on standard input."},
  };
  for (const auto& [arguments, sentence] : cases) {
    const ToolRun run(arguments);
    EXPECT_EQ(run.status, 2) << sentence;
    EXPECT_THAT(run.err, HasSubstr(sentence));
    EXPECT_EQ(run.out, "");
  }
  EXPECT_EQ(FilesThere(), 0u);
}

TEST_F(DirectoryToolTest, HelpAndVersion) {
  const ToolRun help({"--help"});
  EXPECT_EQ(help.status, 0);
  for (const char* command : {"create", "sample", "check", "info"}) {
    EXPECT_THAT(help.out, HasSubstr(command));
    const ToolRun own({command, "--help"});
    EXPECT_EQ(own.status, 0);
    EXPECT_THAT(own.out, HasSubstr(std::string("Usage: mindloft-directory ") + command + " FILE"));
  }
  EXPECT_THAT(ToolRun({"create", "--help"}).out, HasSubstr("--password-stdin"));
  EXPECT_THAT(ToolRun({"--version"}).out, HasSubstr(MINDLOFT_VERSION));
}

TEST_F(DirectoryToolTest, CreateAsksUntilThePasswordsAgree) {
  const ToolRun run({"create", File("größe 字")}, {},
                    {"Zoë", "long password", "other password", "long password", "long password"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.prompts.size(), 5u);
  EXPECT_EQ(run.prompts[0], "shown Name of the first administrator: ");
  EXPECT_EQ(run.prompts[1], "hidden Password: ");
  EXPECT_THAT(run.err, HasSubstr("differ"));
  EXPECT_EQ((run.out + run.err).find("long password"), std::string::npos);
  EXPECT_TRUE(CanLogIn("größe 字", "zoë", "long password"));
}

TEST_F(DirectoryToolTest, CreateReadsThePasswordFromInputAndReplacesOnlyByForce) {
  EXPECT_EQ(
      ToolRun({"create", File("d"), "--name", "root", "--password-stdin"}, "first password\r\nrest\n").status,
      0);
  EXPECT_TRUE(CanLogIn("d", "root", "first password"));
  const auto before = Content("d");
  const ToolRun again({"create", File("d"), "--name=root", "--password-stdin"}, "second password\n");
  EXPECT_EQ(again.status, 1);
  EXPECT_THAT(again.err, HasSubstr("is there already; --force"));
  EXPECT_EQ(Content("d"), before);
  EXPECT_EQ(
      ToolRun({"create", File("d"), "--force", "--name", "", "--password-stdin"}, "long password\n").status,
      1);
  const ToolRun weak({"create", File("d"), "--force", "--name", "root", "--password-stdin"}, "short\n");
  EXPECT_EQ(weak.status, 1);
  EXPECT_THAT(weak.err, HasSubstr("at least 12 characters"));
  EXPECT_EQ(Content("d"), before);
  EXPECT_EQ(ToolRun({"create", File("d"), "--force", "--name", "root", "--password-stdin"}, "second password")
                .status,
            0);
  EXPECT_TRUE(CanLogIn("d", "root", "second password"));
  EXPECT_EQ(
      ToolRun({"create", File("d/below-a-file"), "--name", "root", "--password-stdin"}, "long password\n")
          .status,
      1);
}

TEST_F(DirectoryToolTest, InfoCountsWhatSampleMade) {
  const ToolRun sample({"sample", File("s"), "--users", "60", "--domains", "3", "--groups", "2"});
  ASSERT_EQ(sample.status, 0) << sample.err;
  const auto last = sample.out.rfind("password: ");
  ASSERT_NE(last, std::string::npos);
  const auto password = sample.out.substr(last + 10, sample.out.size() - last - 11);
  EXPECT_EQ(password.find('\n'), std::string::npos);
  EXPECT_TRUE(CanLogIn("s", "admin", password));

  const ToolRun info({"info", File("s")});
  EXPECT_EQ(info.status, 0);
  EXPECT_THAT(info.out, testing::ContainsRegex("users +60\n"));
  EXPECT_THAT(info.out, testing::ContainsRegex("domains +3\n"));
  EXPECT_THAT(info.out, testing::ContainsRegex("groups +9\n"));
  EXPECT_EQ(ToolRun({"check", File("s")}).out, "No problems.\n");
  EXPECT_EQ(ToolRun({"sample", File("s")}).status, 1);
  EXPECT_TRUE(CanLogIn("s", "admin", password));
  EXPECT_EQ(FilesThere(), 1u);
}

TEST_F(DirectoryToolTest, FilesThatAreNoDirectories) {
  Write("text",
        "just some text, long enough to be read as the header of a database file, but it is none at all");
  Write("empty", "");
  ASSERT_EQ(ToolRun({"sample", File("half"), "--users", "300"}).status, 0);
  auto content = Content("half");
  Write("half", content.substr(0, content.size() / 2));
  std::filesystem::create_directory(folder_ / "folder");
  struct Case {
    const char *name, *sentence;
  };
  for (const auto& [name, sentence] : {Case{"none", "There is no file"}, Case{"text", "is no directory."},
                                       Case{"empty", ""}, Case{"half", ""}, Case{"folder", ""}}) {
    for (const char* command : {"check", "info"}) {
      if (command == std::string("info") && name == std::string("half")) continue;
      const ToolRun run({command, File(name)});
      EXPECT_EQ(run.status, 1) << command << ' ' << name << run.out;
      EXPECT_NE(run.err + run.out, "");
      EXPECT_THAT(run.err, HasSubstr(sentence));
    }
  }
}

}  // namespace
}  // namespace mindloft::test
