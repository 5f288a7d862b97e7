#include <windows.h>
#include <wx/dde.h>
#include <wx/snglinst.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <thread>
#include <vector>

#include "platform/ui/InstanceTransport.h"
#include "platform/ui/PercentCode.h"
#include "platform/ui/SingleInstance.h"
#include "platform/ui/TextDelivery.h"
#include "platform/ui/windows/DdeClient.h"
#include "platform/windows/UserSid.h"

namespace mindloft::platform {
namespace {

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
  Service(std::vector<wxString> topics, std::function<void(const std::string&)> onText)
      : topics_(std::move(topics)), delivery_(std::make_shared<TextDelivery>(std::move(onText))) {}
  wxConnectionBase* OnAcceptConnection(const wxString& topic) override {
    const auto isMeant = [&](const wxString& own) { return topic.IsSameAs(own, false); };
    return std::ranges::any_of(topics_, isMeant) ? new Link(delivery_) : nullptr;
  }

 private:
  std::vector<wxString> topics_;
  std::shared_ptr<TextDelivery> delivery_;
};

/// All programs on a desktop see its DDE services, also those that somebody has started there as another
/// user. An instance therefore speaks to the topic with its user's identifier. The plain topic is served as
/// well, for other programs; which user's console answers there is the system's choice.
class DdeTransport : public InstanceTransport {
 public:
  DdeTransport(const std::string& application, const std::string& topic)
      : application_(application), topic_(topic), ownTopic_(topic + "-" + UserSid()) {
    // The system keeps such names apart for each session.
    checker_.Create(wxString::FromUTF8(application + "-" + ownTopic_));
  }

  bool IsAnotherRunning() const override { return checker_.IsAnotherRunning(); }

  SendResult Send(const std::string& text) override {
    // This process was just started by the user, the first one was not: without leave it could not come to
    // the front.
    AllowSetForegroundWindow(ASFW_ANY);
    auto promise = std::make_shared<std::promise<SendResult>>();
    auto result = promise->get_future();
    // Making a link asks every window of the desktop and waits for each, also for one that hangs. The thread
    // is left behind then, and ends with this process.
    std::thread([promise, application = application_, topic = ownTopic_, encoded = PercentEncoded(text)] {
      try {
        promise->set_value(ExecuteByDde(application, topic, encoded));
      } catch (...) {
        promise->set_value(SendResult::NotTaken);
      }
    }).detach();
    return result.wait_for(Patience) == std::future_status::ready ? result.get() : SendResult::NotTaken;
  }

  bool Serve(std::function<void(const std::string&)> onText) override {
    service_.reset();
    const std::vector topics = {wxString::FromUTF8(topic_), wxString::FromUTF8(ownTopic_)};
    auto service = std::make_unique<Service>(topics, std::move(onText));
    if (!service->Create(wxString::FromUTF8(application_))) return false;
    service_ = std::move(service);
    return true;
  }

 private:
  std::string application_, topic_, ownTopic_;
  wxSingleInstanceChecker checker_;
  std::unique_ptr<Service> service_;
};

}  // namespace

std::unique_ptr<InstanceTransport> InstanceTransport::Create(const std::string& application,
                                                             const std::string& topic) {
  return std::make_unique<DdeTransport>(application, topic);
}

}  // namespace mindloft::platform
