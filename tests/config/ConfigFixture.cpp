#include "tests/config/ConfigFixture.h"

#include "backend/tessaline/Text.h"
#include "config/frmConfiguration.h"
#include "core/LanguageImport.h"

namespace mindloft::test {
namespace {

constexpr auto kUser = platform::RegistryRoot::CurrentUser;
constexpr const char* kSettingsKey = "Software\\Ordwell\\Mindloft\\Settings";

}  // namespace

void ConfigFixture::TearDown() {
  EndLanguageImport();
  PrivateServices::TearDown();
}

wxString ConfigFixture::Setting(int index) {
  return GetResource().GetSetting(static_cast<Tessaline::Setting>(index));
}

void ConfigFixture::Set(int index, const wxString& text) {
  GetResource().SetSetting(static_cast<Tessaline::Setting>(index), text);
}

void ConfigFixture::SetRaw(const std::string& setting, const platform::RegistryValue& value) {
  registry_->Set(kUser, kSettingsKey, setting, value);
}

std::string ConfigFixture::AllSettings() const {
  std::string all;
  for (const auto& [name, value] : registry_->Values(kUser, kSettingsKey)) {
    const auto* text = std::get_if<std::string>(&value);
    const auto* number = std::get_if<std::uint32_t>(&value);
    all += name + (text ? "=" + *text : number ? ":" + std::to_string(*number) : " of another type") + "\n";
  }
  return all;
}

void ConfigFixture::Configure(ModalDriver::Script script) {
  ModalDriver modal;
  modal.ExpectForm("frmConfiguration", std::move(script));
  frmConfiguration(nullptr).ShowModal();
}

void ConfigFixture::AddUrl(const std::string& key, const std::string& url) {
  registry_->Set(kUser, kUrlKey, key, url);
}

std::vector<std::string> ConfigFixture::Urls() const {
  std::vector<std::string> urls;
  for (const auto& [name, value] : registry_->Values(kUser, kUrlKey)) {
    if (const auto* text = std::get_if<std::string>(&value)) urls.push_back(*text);
  }
  return urls;
}

}  // namespace mindloft::test
