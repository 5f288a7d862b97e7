#include "tests/app/StartFixture.h"

#include "backend/corvane/LocalDirectory.h"
#include "tests/support/WatchedRegistry.h"

namespace mindloft::test {

using Tessaline::Setting;

void StartFixture::SetUp() {
  PrivateServices::SetUp();
  registry_ = std::make_shared<WatchedRegistry>(registry_, "IsLogin", [this](WatchedRegistry::Access access) {
    trace_.push_back(access == WatchedRegistry::Access::Read ? "IsLogin" : "IsLogin!");
  });
  RestartServices();
}

void StartFixture::TearDown() {
  SetApplication(nullptr);
  PrivateServices::TearDown();
}

void StartFixture::MakeDirectory() const {
  Corvane::CreateLocalDirectory(file_, kUser, kPassword);
}

void StartFixture::SetAutoLogin(const wxString& enabled, const wxString& password) {
  auto& resource = GetResource();
  resource.SetSetting(Setting::AutoLoginEnabled, enabled);
  resource.SetSetting(Setting::ConnectMode, "1");
  resource.SetSetting(Setting::ConfigurationServer, "(local)");
  resource.SetSetting(Setting::ConfigurationPort, "1");
  resource.SetSetting(Setting::LoginUserName, kUser);
  resource.SetSetting(Setting::LoginPassword, password);
}

void StartFixture::SetIsLogin(const platform::RegistryValue& value) {
  registry_->Set(platform::RegistryRoot::LocalMachine,
                 "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnce", "IsLogin", value);
}

StartServices StartFixture::TracingServices() {
  StartServices services;
  services.directories = [this](const Corvane::ConnectionTarget& target) {
    trace_.push_back("open");
    targets_.push_back(target);
    if (!reachable_) throw Error(ErrorNumber::ServerUnreachable, "nowhere", {"nowhere"});
    return Corvane::EmbeddedDirectoryProvider(file_)({1, "", 0, ""});
  };
  services.isShiftDown = [this] { return NextShift(); };
  services.login = [this](const wxString& title) {
    trace_.push_back("dialog");
    loginTitle_ = title;
    return loginResult_;
  };
  services.raiseLogin = [this] { trace_.push_back("raise"); };
  services.showMainWindow = [this] { trace_.push_back("window"); };
  services.handOver = [this] { trace_.push_back("handOver"); };
  return services;
}

bool StartFixture::NextShift() {
  trace_.push_back("shift");
  if (shift_.empty()) return false;
  const bool down = shift_.front();
  shift_.erase(shift_.begin());
  return down;
}

std::string StartFixture::Trace() const {
  std::string text;
  for (const auto& step : trace_) text += (text.empty() ? "" : " ") + step;
  return text;
}

}  // namespace mindloft::test
