#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "platform/ui/InstanceTransport.h"
#include "platform/ui/windows/DdeClient.h"
#include "platform/windows/UserSid.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using platform::SendResult;

TEST(DdeTransport, AnswersItsOwnUserAndOtherProgramsButNoOtherUsersConsole) {
  const TemporaryFolder folder;
  const std::string topic = "test-" + folder.Path().filename().string().substr(14);
  const std::string sid = platform::UserSid();
  ASSERT_TRUE(sid.starts_with("S-1-")) << sid;

  auto first = platform::InstanceTransport::Create("Pellacor", topic);
  ASSERT_FALSE(first->IsAnotherRunning());
  std::vector<std::string> received;
  ASSERT_TRUE(first->Serve([&](const std::string& text) { received.push_back(text); }));
  struct Case {
    std::string topic;
    SendResult result;
  };
  for (const auto& [asked, expected] :
       {Case{topic + "-" + sid, SendResult::Taken}, Case{topic, SendResult::Taken},
        Case{topic + "-" + sid + "0", SendResult::NobodyThere},
        Case{topic + "-S-1-5-18", SendResult::NobodyThere}}) {
    // A client waits for its server, whose main loop must run meanwhile.
    std::atomic<int> result = -1;
    std::thread client(
        [&, name = asked] { result = static_cast<int>(platform::ExecuteByDde("Pellacor", name, "text")); });
    WaitFor([&] { return result >= 0; }, "the client's end");
    client.join();
    EXPECT_EQ(result, static_cast<int>(expected)) << asked;
  }
  WaitFor([&] { return received.size() == 2; }, "the two texts");
}

}  // namespace
}  // namespace mindloft::test
