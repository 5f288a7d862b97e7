#include "backend/tessaline/Resource.h"

#include <algorithm>
#include <array>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"
#include "platform/EmbeddedFile.h"
#include "platform/Paths.h"

namespace mindloft::Tessaline {
namespace {

constexpr int englishCode = 1033;
/// The languages that come with the program, in the order in which they are offered.
constexpr std::array ownLanguages = {englishCode, 2052, 1031, 1025, 1041, 1055};
constexpr const char* settingsKey = "Software\\Ordwell\\Mindloft\\Settings";
/// The language configuration's own value, which the languages' registry files set.
constexpr const char* languageKey = "Software\\Ordwell\\Mindloft\\Resource";
constexpr const char* languageValue = "CurrentLangue";

const char* SettingName(Setting index) {
  switch (index) {
    case Setting::ConnectMode:
      return "ConnectMode";
    case Setting::WebServerURL:
      return "WebServerURL";
    case Setting::ProxyEnabled:
      return "ProxyEnabled";
    case Setting::ProxyIP:
      return "ProxyIP";
    case Setting::ProxyPort:
      return "ProxyPort";
    case Setting::ProxyUser:
      return "ProxyUser";
    case Setting::ProxyPassword:
      return "ProxyPassword";
    case Setting::WebTimeout:
      return "WebTimeout";
    case Setting::CurrentLanguage:
      return "CurrentLanguage";
    case Setting::AutoLoginEnabled:
      return "AutoLoginEnabled";
    case Setting::LoginUserName:
      return "LoginUserName";
    case Setting::LoginPassword:
      return "LoginPassword";
    case Setting::SecureChannel:
      return "SecureChannel";
    case Setting::ConfigurationServer:
      return "ConfigurationServer";
    case Setting::ConfigurationPort:
      return "ConfigurationPort";
  }
  throw Error(ErrorNumber::Unexpected, "no setting " + std::to_string(static_cast<int>(index)));
}

/// A whole positive number, 0 when the text is none.
int CodeOf(const wxString& text) {
  long code = 0;
  bool number = text.ToCLong(&code) && code > 0 && code < 0x10000;
  return number ? static_cast<int>(code) : 0;
}

std::string_view EmbeddedEnglish() {
  return platform::EmbeddedFile("languages/1033.xml");
}

wxString FillIn(const wxString& text, const std::vector<wxString>& parameters) {
  wxString filled;
  for (auto at = text.begin(); at != text.end(); ++at) {
    auto next = at + 1;
    if (*at != '%' || next == text.end()) {
      filled += *at;
      continue;
    }
    std::size_t index = *next >= '1' && *next <= '9' ? (*next).GetValue() - '1' : parameters.size();
    if (*next == '%') {
      filled += '%';
    } else if (index < parameters.size()) {
      filled += parameters[index];
    } else {
      filled += *at;
      continue;
    }
    at = next;
  }
  return filled;
}

}  // namespace

Resource::Resource(std::shared_ptr<Registry> registry, std::filesystem::path languageFolder,
                   std::shared_ptr<platform::SecretStore> secrets)
    : registry_(std::move(registry)),
      loginPassword_(std::make_unique<ProtectedSetting>(registry_, std::move(secrets), settingsKey,
                                                        SettingName(Setting::LoginPassword))),
      languageFolder_(languageFolder.empty() ? platform::ResourceFolder() / "languages"
                                             : std::move(languageFolder)) {
  const int code = StoredLanguage();
  language_ = TryLoad(code ? code : englishCode);
  if (!language_) {
    English();
    language_ = english_;
  }
}

int Resource::StoredLanguage() const {
  const int configured =
      CodeOf(registry_->GetString(platform::RegistryRoot::CurrentUser, languageKey, languageValue));
  return configured ? configured : CodeOf(GetSetting(Setting::CurrentLanguage, true));
}

std::filesystem::path Resource::FileOf(int code) const {
  return languageFolder_ / (std::to_string(code) + ".xml");
}

std::shared_ptr<const LanguageFile> Resource::TryLoad(int code) const {
  auto path = FileOf(code);
  try {
    const std::string xml = LanguageFile::Read(path);
    // English beside the program is mostly the one inside it, which is wanted anyhow: read once.
    if (code == englishCode && xml == EmbeddedEnglish()) {
      English();
      return english_;
    }
    auto file = std::make_shared<const LanguageFile>(LanguageFile::Parse(xml));
    if (file->Code() == code) return file;
    throw Error(ErrorNumber::TypeMismatch, "the file is of language " + std::to_string(file->Code()));
  } catch (const Error& error) {
    lastProblem_ = ToWx(platform::PathToUtf8(path) + ": " + error.Description());
    return nullptr;
  }
}

const LanguageFile& Resource::English() const {
  if (!english_) {
    english_ = std::make_shared<const LanguageFile>(LanguageFile::Parse(EmbeddedEnglish()));
  }
  return *english_;
}

wxString Resource::GetString(int number) const {
  auto text = language_->Text(number);
  if (!text || text->empty()) text = English().Text(number);
  return text && !text->empty() ? *text : wxString::Format("#%d", number);
}

wxString Resource::GetFormatString(int number, const std::vector<wxString>& parameters) const {
  if (!IsRightToLeft()) return FillIn(GetString(number), parameters);
  // A name or a time must not be torn apart by the direction of the words around it: each stands in a first
  // strong isolate of its own.
  std::vector<wxString> isolated;
  isolated.reserve(parameters.size());
  for (const auto& parameter : parameters) {
    isolated.push_back(wxString(wxUniChar(0x2068)) + parameter + wxUniChar(0x2069));
  }
  return FillIn(GetString(number), isolated);
}

std::optional<LanguageFile::Caption> Resource::CaptionOf(const wxString& form,
                                                         const wxString& control) const {
  auto caption = language_->CaptionOf(form, control);
  return caption ? caption : English().CaptionOf(form, control);
}

wxString Resource::GetLanguageValue(const wxString& key) const {
  if (key == "CurrentLangue") return wxString::Format("%d", CurrentLanguage());
  auto codes = Languages();
  if (key == "Set_Display" || key == "Set_Value") {
    wxString joined;
    for (int code : codes) {
      if (!joined.empty()) joined += ";";
      joined += key == "Set_Value" ? wxString::Format("%d", code) : LanguageName(code);
    }
    return joined;
  }
  bool known = std::find(codes.begin(), codes.end(), CodeOf(key)) != codes.end();
  return known ? key + ".reg" : wxString();
}

wxString Resource::GetSetting(Setting index, bool machineDefault) const {
  const char* name = SettingName(index);
  wxString text = index == Setting::LoginPassword
                      ? loginPassword_->Read()
                      : registry_->GetString(platform::RegistryRoot::CurrentUser, settingsKey, name);
  return text.empty() && machineDefault
             ? registry_->GetString(platform::RegistryRoot::LocalMachine, settingsKey, name)
             : text;
}

void Resource::SetSetting(Setting index, const wxString& text) {
  if (index == Setting::LoginPassword) return loginPassword_->Write(text);
  registry_->SetString(platform::RegistryRoot::CurrentUser, settingsKey, SettingName(index), text);
}

int Resource::CurrentLanguage() const {
  return language_->Code();
}

bool Resource::SwitchLanguage(int code) {
  auto language = TryLoad(code);
  if (!language && code == englishCode) {
    English();
    language = english_;
  }
  if (!language) return false;
  language_ = std::move(language);
  return true;
}

bool Resource::CanSwitchTo(int code) const {
  return code == englishCode || TryLoad(code);
}

void Resource::KeepLanguage() {
  const wxString code = wxString::Format("%d", CurrentLanguage());
  registry_->SetString(platform::RegistryRoot::CurrentUser, languageKey, languageValue, code);
  SetSetting(Setting::CurrentLanguage, code);
}

bool Resource::IsRightToLeft() const {
  return language_->IsRightToLeft();
}

std::vector<int> Resource::Languages() const {
  if (names_.empty()) {
    names_[englishCode] = English().Name();
    std::error_code failure;
    std::filesystem::directory_iterator entries(languageFolder_, failure);
    for (; !failure && entries != std::filesystem::directory_iterator(); entries.increment(failure)) {
      int code = CodeOf(ToWx(platform::PathToUtf8(entries->path().stem())));
      if (code == 0 || entries->path().extension() != ".xml" || names_.count(code)) continue;
      if (auto file = TryLoad(code)) names_[code] = file->Name();
    }
  }
  std::vector<int> codes;
  for (int code : ownLanguages) {
    if (names_.count(code)) codes.push_back(code);
  }
  for (const auto& [code, name] : names_) {
    if (std::find(codes.begin(), codes.end(), code) == codes.end()) codes.push_back(code);
  }
  return codes;
}

wxString Resource::LanguageName(int code) const {
  if (code == language_->Code()) return language_->Name();
  Languages();
  auto name = names_.find(code);
  return name == names_.end() ? wxString() : name->second;
}

}  // namespace mindloft::Tessaline
