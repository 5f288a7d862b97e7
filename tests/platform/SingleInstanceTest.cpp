#include <gmock/gmock.h>
#include <wx/utils.h>

#include <fstream>
#include <memory>

#include "platform/FileAccess.h"
#include "platform/Paths.h"
#include "platform/ui/InstanceTransport.h"
#include "platform/ui/PercentCode.h"
#include "platform/ui/SingleInstance.h"
#include "tests/platform/Child.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using platform::SendResult;
using platform::SingleInstance;

std::string ExistingOrEmpty(const std::filesystem::path& file) {
  return platform::ReadWholeFile(file).value_or(std::string());
}

/// A name of this test's own, so that no console of the user answers, and no test of another run.
class SingleInstanceTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return (folder_ / name).string(); }

  /// Hands a text over from a process of its own; its exit status.
  int Send(const std::string& text) {
    std::ofstream(Path("text"), std::ios::binary) << text;
    return Child({"send", topic_, Path("text")}).Wait();
  }

  TemporaryFolder folder_;
  std::string topic_ = "test-" + folder_.Path().filename().string().substr(14);
};

TEST_F(SingleInstanceTest, OfTwoStartedInTheSameInstantExactlyOneIsTheFirst) {
  for (int round = 0; round < 5; ++round) {
    auto name = [&](const char* what) { return Path(what + std::to_string(round)); };
    Child one({"first", topic_, name("go"), name("one"), name("end")});
    Child two({"first", topic_, name("go"), name("two"), name("end")});
    std::ofstream(name("go")) << "go";
    WaitFor([&] { return !ExistingOrEmpty(name("one")).empty() && !ExistingOrEmpty(name("two")).empty(); },
            "both answers");
    EXPECT_THAT(ExistingOrEmpty(name("one")) + ExistingOrEmpty(name("two")), testing::AnyOf("01", "10"));
    std::ofstream(name("end")) << "end";
    one.Wait();
    two.Wait();
  }
}

TEST_F(SingleInstanceTest, HandsEveryTextOverUnchanged) {
  SingleInstance first("Pellacor", topic_);
  ASSERT_FALSE(first.IsAnotherRunning());
  std::vector<std::string> received;
  ASSERT_TRUE(first.Serve([&](const std::string& text) { received.push_back(text); }));
  std::string every;
  for (char c = 1; c < 127; ++c) every += c;
  const std::string texts[] = {
      "",
      "Sales",
      "销售部 知识域",
      "نطاق المعرفة",
      "😀 Ölkännchen",
      every,
      "100 % %41 %",
      std::string(32000, 'x'),
      [] {
        std::string text;
        for (int i = 0; i < 32000; ++i) text += "知";
        return text;
      }(),
  };
  for (const auto& text : texts) {
    received.clear();
    EXPECT_EQ(Send(text), 0);
    WaitFor([&] { return !received.empty(); }, "the text");
    EXPECT_THAT(received, testing::ElementsAre(text));
  }
}

TEST_F(SingleInstanceTest, SurvivesTextsThatAreNoneAndCallbacksThatThrow) {
  SingleInstance first("Pellacor", topic_);
  std::vector<std::string> received;
  ASSERT_TRUE(first.Serve([&](const std::string& text) {
    received.push_back(text);
    if (text == "throw") throw std::runtime_error("from the callback");
  }));
  Send("broken \xFF");
  EXPECT_NE(Send(std::string(SingleInstance::LongestText + 1, 'x')), 0);
  Send("throw");
  Send("after");
  WaitFor([&] { return received.size() == 2; }, "the two good texts");
  EXPECT_THAT(received, testing::ElementsAre("throw", "after"));
}

TEST_F(SingleInstanceTest, GivesUpOnAFirstInstanceThatHangsOrServesNot) {
  {
    SingleInstance starting("Pellacor", topic_);
    EXPECT_EQ(Send("nobody answers"), 1);
  }
  Child hanging({"hang", topic_, Path("ready"), Path("end")});
  WaitFor([&] { return std::filesystem::exists(Path("ready")); }, "the hanging instance");
  EXPECT_EQ(Send("never taken"), 1) << "and the sender has ended";
  EXPECT_EQ(Send(std::string(900000, 'x')), 1);
  std::ofstream(Path("end")) << "end";
  EXPECT_EQ(hanging.Wait(), 0);
}

TEST_F(SingleInstanceTest, TakesOverAfterTheFirstWasKilled) {
  {
    Child killed({"hang", topic_, Path("ready"), Path("never")});
    WaitFor([&] { return std::filesystem::exists(Path("ready")); }, "the first instance");
    EXPECT_TRUE(SingleInstance("Pellacor", topic_).IsAnotherRunning());
  }
  SingleInstance next("Pellacor", topic_);
  EXPECT_FALSE(next.IsAnotherRunning());
  std::string received;
  ASSERT_TRUE(next.Serve([&](const std::string& text) { received = text; }));
  EXPECT_EQ(Send("to the next"), 0);
  WaitFor([&] { return received == "to the next"; }, "the text");
}

/// Gives the results that it was told, one for each try.
class ScriptedTransport : public platform::InstanceTransport {
 public:
  ScriptedTransport(std::vector<SendResult> results, int& tries)
      : results_(std::move(results)), tries_(tries) {}
  bool IsAnotherRunning() const override { return true; }
  SendResult Send(const std::string&) override { return results_.at(static_cast<std::size_t>(tries_++)); }
  bool Serve(std::function<void(const std::string&)>) override { return false; }

 private:
  std::vector<SendResult> results_;
  int& tries_;
};

TEST(SingleInstance, TriesAgainOnlyWhileNobodyServes) {
  using enum SendResult;
  struct Case {
    std::vector<SendResult> results;
    std::size_t length;
    bool taken;
    int tries;
  };
  for (const auto& [results, length, taken, tries] :
       {Case{{Taken}, 5, true, 1}, Case{{NotTaken, Taken}, 5, false, 1},
        Case{{NobodyThere, Taken}, 5, true, 2}, Case{{NobodyThere, NobodyThere, Taken}, 5, true, 3},
        Case{{NobodyThere, NobodyThere, NobodyThere, Taken}, 5, false, 3},
        Case{{Taken}, SingleInstance::LongestText, true, 1},
        Case{{Taken}, SingleInstance::LongestText + 1, false, 0}, Case{{}, 5, false, 1}}) {
    int made = 0;
    SingleInstance second(std::make_unique<ScriptedTransport>(results, made));
    EXPECT_EQ(second.SendToFirst(std::string(length, 'x')), taken);
    EXPECT_EQ(made, tries) << "the last case's only try throws";
  }
}

TEST(PercentCode, IsPlainAsciiAndDecodesTolerantly) {
  std::string bytes;
  for (int c = 0; c < 256; ++c) bytes += static_cast<char>(c);
  auto encoded = platform::PercentEncoded(bytes);
  for (char c : encoded) EXPECT_TRUE(c >= 0x20 && c < 0x7F);
  EXPECT_EQ(platform::PercentDecoded(encoded), bytes);
  for (const char* text : {"%", "%4", "%g1", "100 %", "%-1"}) EXPECT_EQ(platform::PercentDecoded(text), text);
}

}  // namespace
}  // namespace mindloft::test
