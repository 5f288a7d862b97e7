#include <fcntl.h>
#include <sys/file.h>

#include <cctype>
#include <cstdlib>

#include "platform/Paths.h"
#include "platform/linux/Descriptor.h"
#include "platform/ui/InstanceTransport.h"
#include "platform/ui/linux/TextSocket.h"

namespace mindloft::platform {
namespace {

/// What tells this session from the user's others: the display on which windows appear.
std::string SessionName() {
  for (const char* variable : {"WAYLAND_DISPLAY", "DISPLAY"}) {
    const char* value = std::getenv(variable);
    if (!value || !*value) continue;
    std::string name(value);
    if (variable[0] == 'D') {
      // ":0.1" is another screen of the display ":0".
      auto colon = name.rfind(':');
      auto dot = colon == std::string::npos ? colon : name.find('.', colon);
      name = name.substr(0, dot);
    }
    return name;
  }
  return "none";
}

std::string FileName(const std::string& application, const std::string& topic) {
  auto name = application + "-" + topic + "-" + SessionName();
  for (auto& c : name) {
    if (!std::isalnum(static_cast<unsigned char>(c)) && c != '-') c = '_';
  }
  return name;
}

/// A private socket, and a lock that its owner holds.
class SocketTransport : public InstanceTransport {
 public:
  SocketTransport(const std::string& application, const std::string& topic) {
    try {
      auto name = FileName(application, topic);
      socket_ = RuntimeFolder() / (name + ".socket");
      lock_ = Descriptor(open((RuntimeFolder() / (name + ".lock")).c_str(),
                              O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    } catch (...) {
      // Without a place of its own the program still starts; it only cannot know of others.
      return;
    }
    isAnotherRunning_ = lock_ && flock(lock_.Get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  }

  bool IsAnotherRunning() const override { return isAnotherRunning_; }

  SendResult Send(const std::string& text) override { return SendText(socket_, text); }

  bool Serve(std::function<void(const std::string&)> onText) override {
    // Only the lock's owner may remove what a crashed instance left.
    if (!lock_ || isAnotherRunning_) return false;
    server_.reset();
    server_ = TextServer::Create(socket_, std::move(onText));
    return server_ != nullptr;
  }

 private:
  std::filesystem::path socket_;
  Descriptor lock_;
  bool isAnotherRunning_ = false;
  std::unique_ptr<TextServer> server_;  // goes before the lock
};

}  // namespace

std::unique_ptr<InstanceTransport> InstanceTransport::Create(const std::string& application,
                                                             const std::string& topic) {
  return std::make_unique<SocketTransport>(application, topic);
}

}  // namespace mindloft::platform
