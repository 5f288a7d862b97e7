#include <gmock/gmock.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <cstdlib>

#include "backend/directory/SqliteDirectory.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::test {
namespace {

using testing::HasSubstr;
using testing::Not;

/// The real program at a terminal of its own, and the person in front of it.
class AtTerminal {
 public:
  explicit AtTerminal(const std::vector<std::string>& arguments) {
    const auto program = ProgramBeside("mindloft-directory").string();
    std::vector<char*> words = {const_cast<char*>(program.c_str())};
    for (const auto& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    child_ = forkpty(&terminal_, nullptr, nullptr, nullptr);
    if (child_ == 0) {
      execv(words[0], words.data());
      _exit(127);
    }
  }
  ~AtTerminal() {
    close(terminal_);
    if (child_ > 0) waitpid(child_, nullptr, 0);
  }
  AtTerminal(const AtTerminal&) = delete;
  AtTerminal& operator=(const AtTerminal&) = delete;

  /// Reads until that prompt is the last thing on the screen. The person sees it before typing, and by then
  /// the terminal hides what it is told to hide.
  void Expect(const std::string& prompt) {
    while (!screen_.ends_with(prompt))
      if (!ReadMore()) throw std::runtime_error("waited in vain for \"" + prompt + "\" after: " + screen_);
  }
  void Type(const std::string& keys) {
    ASSERT_EQ(write(terminal_, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  }
  bool Echoes() const {
    termios settings{};
    tcgetattr(terminal_, &settings);
    return (settings.c_lflag & ECHO) != 0;
  }
  /// The program's status, once it has ended; all it wrote is on the screen then.
  int End() {
    while (ReadMore()) {
    }
    int status = -1;
    waitpid(child_, &status, 0);
    child_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  const std::string& Screen() const { return screen_; }

 private:
  bool ReadMore() {
    constexpr int kLongestWait = 30000;  // milliseconds: reached only by a test that fails
    pollfd ready{terminal_, POLLIN, 0};
    char bytes[256];
    if (poll(&ready, 1, kLongestWait) != 1) return false;
    const auto count = read(terminal_, bytes, sizeof bytes);
    if (count <= 0) return false;
    screen_.append(bytes, static_cast<std::size_t>(count));
    return true;
  }

  int terminal_ = -1;
  pid_t child_ = -1;
  std::string screen_;
};

class TerminalTest : public testing::Test {
 protected:
  TemporaryFolder folder_;
  const std::string file_ = (folder_.Path() / "made.directory").string();
};

TEST_F(TerminalTest, AsksForNameAndHiddenPasswordAndShowsNoneOfIt) {
  AtTerminal terminal({"create", file_});
  terminal.Expect("Name of the first administrator: ");
  EXPECT_TRUE(terminal.Echoes());
  terminal.Type("Jürgen\n");
  // Mistyped once; a character of two bytes is erased as one.
  for (const auto& [prompt, keys] : {std::pair("Password: ",
                                               "correct horsé\x7F"
                                               "e battery\n"),
                                     std::pair("Password again: ",
                                               "nonsense\x15"
                                               "correct horse battery\n")}) {
    terminal.Expect(prompt);
    EXPECT_FALSE(terminal.Echoes());
    terminal.Type(keys);
  }
  EXPECT_EQ(terminal.End(), 0) << terminal.Screen();
  EXPECT_THAT(terminal.Screen(), HasSubstr("Jürgen"));
  for (const char* secret : {"correct", "hors", "battery", "nonsense"})
    EXPECT_THAT(terminal.Screen(), Not(HasSubstr(secret)));
  const auto directory = SqliteDirectory::Open(file_);
  EXPECT_NE(directory->Login("Jürgen", "correct horse battery"), 0u);
}

TEST_F(TerminalTest, AsksAgainForTwoThatDifferAndMakesNothingWhenOneGivesUp) {
  for (const char* giveUp : {"\x03", "\x04"}) {
    AtTerminal terminal({"create", file_, "--name=anna"});
    terminal.Expect("Password: ");
    terminal.Type("correct horse battery\n");
    terminal.Expect("Password again: ");
    terminal.Type("another horse battery\n");
    terminal.Expect("Password: ");
    terminal.Type(std::string("half") + giveUp);
    EXPECT_NE(terminal.End(), 0);
    EXPECT_FALSE(std::filesystem::exists(file_));
    EXPECT_THAT(terminal.Screen(), Not(HasSubstr("horse")));
  }
}

}  // namespace
}  // namespace mindloft::test
