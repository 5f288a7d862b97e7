#include "platform/ui/SingleInstance.h"

#include <windows.h>
#include <wx/dde.h>
#include <wx/snglinst.h>
#include <wx/utils.h>

#include <chrono>
#include <future>
#include <thread>

#include "platform/ui/PercentCode.h"
#include "platform/ui/TextDelivery.h"
#include "platform/ui/windows/DdeClient.h"
#include "platform/windows/Wide.h"

namespace mindloft::platform {
namespace {

// While the first instance is starting up its service is not there yet.
constexpr int Attempts = 3;
constexpr std::chrono::milliseconds Pause(100);
/// The longest wait for a first instance, or any other program that hangs while links are made.
constexpr std::chrono::seconds Patience(3);

class Link : public wxDDEConnection {
 public:
  explicit Link(std::shared_ptr<TextDelivery> delivery) : delivery_(std::move(delivery)) {}
  bool OnExec(const wxString&, const wxString& data) override {
    auto text = data.utf8_string();
    // Three bytes for each one: a longer text cannot be within the limit.
    if (text.size() <= 3 * SingleInstance::LongestText) delivery_->Post(PercentDecoded(text));
    return true;
  }

 private:
  std::shared_ptr<TextDelivery> delivery_;
};

class Service : public wxDDEServer {
 public:
  Service(const std::string& topic, std::function<void(const std::string&)> onText)
      : topic_(wxString::FromUTF8(topic)), delivery_(std::make_shared<TextDelivery>(std::move(onText))) {}
  wxConnectionBase* OnAcceptConnection(const wxString& topic) override {
    return topic.IsSameAs(topic_, false) ? new Link(delivery_) : nullptr;
  }

 private:
  wxString topic_;
  std::shared_ptr<TextDelivery> delivery_;
};

bool SendWithRetries(const std::string& service, const std::string& topic, const std::string& text) {
  for (int attempt = 1;; ++attempt) {
    auto result = ExecuteByDde(service, topic, text);
    if (result != DdeResult::NobodyThere) return result == DdeResult::Taken;
    if (attempt == Attempts) return false;
    std::this_thread::sleep_for(Pause);
  }
}

}  // namespace

class SingleInstance::Impl {
 public:
  Impl(const std::string& application, const std::string& topic) : application_(application), topic_(topic) {
    // The system keeps such names apart for each session; the user's name keeps the users apart.
    checker_.Create(wxString::FromUTF8(application + "-" + topic) + "-" + wxGetUserId());
  }

  bool IsAnotherRunning() const { return checker_.IsAnotherRunning(); }

  bool Send(const std::string& text) const {
    // This process was just started by the user, the first one was not: without leave it could not come to
    // the front.
    AllowSetForegroundWindow(ASFW_ANY);
    auto promise = std::make_shared<std::promise<bool>>();
    auto result = promise->get_future();
    // Making a link asks every window of the desktop and waits for each, also for one that hangs. The thread
    // is left behind then, and ends with this process.
    std::thread([promise, application = application_, topic = topic_, encoded = PercentEncoded(text)] {
      try {
        promise->set_value(SendWithRetries(application, topic, encoded));
      } catch (...) {
        promise->set_value(false);
      }
    }).detach();
    return result.wait_for(Patience) == std::future_status::ready && result.get();
  }

  bool Serve(std::function<void(const std::string&)> onText) {
    service_.reset();
    auto service = std::make_unique<Service>(topic_, std::move(onText));
    if (!service->Create(wxString::FromUTF8(application_))) return false;
    service_ = std::move(service);
    return true;
  }

 private:
  std::string application_;
  std::string topic_;
  wxSingleInstanceChecker checker_;
  std::unique_ptr<Service> service_;
};

SingleInstance::SingleInstance(const std::string& application, const std::string& topic)
    : impl_(std::make_unique<Impl>(application, topic)) {}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::IsAnotherRunning() const {
  return impl_->IsAnotherRunning();
}

bool SingleInstance::SendToFirst(const std::string& utf8Text) try {
  return utf8Text.size() <= LongestText && impl_->Send(utf8Text);
} catch (...) {
  return false;
}

bool SingleInstance::Serve(std::function<void(const std::string&)> onText) {
  return impl_->Serve(std::move(onText));
}

}  // namespace mindloft::platform
