#include "platform/ui/SingleInstance.h"

#include <chrono>
#include <thread>
#include <utility>

#include "platform/ui/InstanceTransport.h"

namespace mindloft::platform {
namespace {

// While the first instance is starting up it does not serve yet.
constexpr int Attempts = 3;
constexpr std::chrono::milliseconds Pause(100);

}  // namespace

SingleInstance::SingleInstance(const std::string& application, const std::string& topic)
    : SingleInstance(InstanceTransport::Create(application, topic)) {}

SingleInstance::SingleInstance(std::unique_ptr<InstanceTransport> transport)
    : transport_(std::move(transport)) {}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::IsAnotherRunning() const {
  return transport_->IsAnotherRunning();
}

bool SingleInstance::SendToFirst(const std::string& utf8Text) noexcept try {
  if (utf8Text.size() > LongestText) return false;
  for (int attempt = 1;; ++attempt) {
    const auto result = transport_->Send(utf8Text);
    if (result != SendResult::NobodyThere) return result == SendResult::Taken;
    if (attempt == Attempts) return false;
    std::this_thread::sleep_for(Pause);
  }
} catch (...) {
  return false;
}

bool SingleInstance::Serve(std::function<void(const std::string&)> onText) {
  return transport_->Serve(std::move(onText));
}

}  // namespace mindloft::platform
