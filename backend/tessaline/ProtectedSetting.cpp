#include "backend/tessaline/ProtectedSetting.h"

#include "backend/errors/Error.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"

namespace mindloft::Tessaline {
namespace {

constexpr auto kRoot = platform::RegistryRoot::CurrentUser;

}  // namespace

ProtectedSetting::ProtectedSetting(std::shared_ptr<Registry> registry,
                                   std::shared_ptr<platform::SecretStore> secrets, const wxString& keyPath,
                                   const wxString& name)
    : registry_(std::move(registry)), secrets_(std::move(secrets)), keyPath_(keyPath), name_(name) {}

platform::SecretStore& ProtectedSetting::Secrets() const {
  if (!secrets_) secrets_ = platform::SystemSecretStore();
  return *secrets_;
}

wxString ProtectedSetting::ClearText() const {
  return registry_->GetString(kRoot, keyPath_, name_);
}

std::string ProtectedSetting::Token() const {
  return ToUtf8(registry_->GetString(kRoot, keyPath_, name_ + "Protected"));
}

void ProtectedSetting::TakeOver() {
  const wxString clear = ClearText();
  if (clear.empty()) return;
  try {
    Store(ToUtf8(clear));
  } catch (...) {
    // It stays where it was and works as before; the next reading tries again.
    GetUtility().Log("a stored password could not be protected: " + CurrentError().Description());
  }
}

wxString ProtectedSetting::Read() {
  TakeOver();
  return ToWx(Reader()());
}

std::function<std::string()> ProtectedSetting::Reader() const {
  if (const wxString clear = ClearText(); !clear.empty()) {
    return [text = ToUtf8(clear)] { return text; };
  }
  const std::string token = Token();
  if (token.empty()) return [] { return std::string(); };
  Secrets();
  return [secrets = secrets_, token] { return secrets->Reveal(token).value_or(std::string()); };
}

void ProtectedSetting::Write(const wxString& text) {
  if (!text.empty()) return Store(ToUtf8(text));
  const std::string old = Token();
  registry_->DeleteValue(kRoot, keyPath_, name_);
  registry_->DeleteValue(kRoot, keyPath_, name_ + "Protected");
  if (!old.empty()) Secrets().Forget(old);
}

// At every moment at least one of the old text, the clear one and the new one can be read.
void ProtectedSetting::Store(const std::string& text) {
  const std::string old = Token();
  const std::string token = Secrets().Protect(text);
  try {
    if (Secrets().Reveal(token) != text) {
      throw Error(ErrorNumber::SecretNotProtected, "the secret store does not give the text back");
    }
    registry_->SetString(kRoot, keyPath_, name_ + "Protected", ToWx(token));
  } catch (...) {
    Secrets().Forget(token);
    throw;
  }
  registry_->DeleteValue(kRoot, keyPath_, name_);
  if (!old.empty()) Secrets().Forget(old);
}

}  // namespace mindloft::Tessaline
