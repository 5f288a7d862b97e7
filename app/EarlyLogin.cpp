#include "app/EarlyLogin.h"

#include <functional>
#include <utility>

#include "app/AutoLogin.h"
#include "backend/directory/SqliteDirectory.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "backend/tessaline/login/SecretText.h"
#include "core/ErrorHandling.h"
#include "platform/Beside.h"

namespace mindloft {
namespace {

using Tessaline::Setting;

/// Nothing when it fails: who opens the directory the usual way is told why.
std::shared_ptr<Directory> Prepare(const std::filesystem::path& file, const std::string& user,
                                   const std::function<std::string()>& readPassword) {
  std::shared_ptr<Directory> directory;
  std::string password;
  try {
    password = readPassword();
    directory = SqliteDirectory::Open(file);
    directory->PrepareLogin(user, password);
  } catch (...) {
    directory.reset();
  }
  WipeText(password);
  return directory;
}

}  // namespace

EarlyLogin::EarlyLogin(std::filesystem::path directoryFile) : file_(std::move(directoryFile)) {
  try {
    const auto& resource = GetResource();
    if (!IsAutoLoginEnabled()) return;
    prepared_ = platform::Beside(
        [file = file_, user = ToUtf8(resource.GetSetting(Setting::LoginUserName)),
         readPassword = resource.LoginPassword().Reader()] { return Prepare(file, user, readPassword); });
  } catch (...) {
    // Without it the start is as right, only slower.
    ReportOnly("EarlyLogin", "EarlyLogin");
  }
}

EarlyLogin::~EarlyLogin() {
  if (prepared_.valid()) prepared_.wait();
}

std::shared_ptr<Directory> EarlyLogin::Open() {
  auto prepared = prepared_.valid() ? prepared_.get() : nullptr;
  return prepared ? prepared : SqliteDirectory::Open(file_);
}

}  // namespace mindloft
