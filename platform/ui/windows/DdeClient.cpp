#include "platform/ui/windows/DdeClient.h"

#include <windows.h>
#include <ddeml.h>

#include "platform/windows/Wide.h"

namespace mindloft::platform {
namespace {

constexpr DWORD ExecuteTimeOut = 1000;  // milliseconds

/// A client that takes no data has nothing to answer.
HDDEDATA CALLBACK Ignore(UINT, UINT, HCONV, HSZ, HSZ, HDDEDATA, ULONG_PTR, ULONG_PTR) {
  return nullptr;
}

class Session {
 public:
  Session() { isReady_ = DdeInitializeW(&instance_, &Ignore, APPCMD_CLIENTONLY, 0) == DMLERR_NO_ERROR; }
  ~Session() {
    if (link_) DdeDisconnect(link_);
    if (isReady_) DdeUninitialize(instance_);
  }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  bool Connect(const std::string& service, const std::string& topic) {
    if (!isReady_) return false;
    auto serviceName = DdeCreateStringHandleW(instance_, Wide(service).c_str(), CP_WINUNICODE);
    auto topicName = DdeCreateStringHandleW(instance_, Wide(topic).c_str(), CP_WINUNICODE);
    link_ = DdeConnect(instance_, serviceName, topicName, nullptr);
    DdeFreeStringHandle(instance_, serviceName);
    DdeFreeStringHandle(instance_, topicName);
    return link_ != nullptr;
  }

  bool Execute(const std::string& text) {
    auto wide = Wide(text);
    auto size = static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t));
    return DdeClientTransaction(reinterpret_cast<BYTE*>(wide.data()), size, link_, nullptr, 0, XTYP_EXECUTE,
                                ExecuteTimeOut, nullptr) != nullptr;
  }

 private:
  DWORD instance_ = 0;
  HCONV link_ = nullptr;
  bool isReady_;
};

}  // namespace

SendResult ExecuteByDde(const std::string& service, const std::string& topic, const std::string& text) {
  Session session;
  if (!session.Connect(service, topic)) return SendResult::NobodyThere;
  return session.Execute(text) ? SendResult::Taken : SendResult::NotTaken;
}

}  // namespace mindloft::platform
