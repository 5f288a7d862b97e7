#include "tests/corvane/CorvaneFixture.h"

#include "backend/directory/SqliteDirectory.h"

namespace mindloft::test {
namespace {

/// Made once: hashing the password takes its time.
const std::filesystem::path& FreshDirectory() {
  static const TemporaryFolder folder;
  static const std::filesystem::path file = [] {
    auto path = folder / "fresh.directory";
    SqliteDirectory::Create(path, {kAdministrator, kPassword});
    return path;
  }();
  return file;
}

}  // namespace

CorvaneFixture::CorvaneFixture() : file_(folder_ / "test.directory") {
  std::filesystem::copy_file(FreshDirectory(), file_);
  console_ = NewConsole();
  if (!LogIn(*console_)) throw Error(ErrorNumber::LoginFailed);
  server_ = console_->Server();
}

std::unique_ptr<Corvane::Application> CorvaneFixture::NewConsole() const {
  auto console = std::make_unique<Corvane::Application>(Corvane::EmbeddedDirectoryProvider(file_));
  console->Connection()->SetConnectMode(1);
  return console;
}

bool CorvaneFixture::LogIn(Corvane::Application& console, const std::string& name,
                           const std::string& password) {
  return console.Connection()->Login(name, password);
}

std::shared_ptr<Corvane::User> CorvaneFixture::AddUser(const std::string& name, const std::string& password) {
  auto user = server_->Users()->Add();
  user->SetName(name);
  if (!password.empty()) user->SetPassword(password);
  user->Update();
  return user;
}

std::shared_ptr<Corvane::KDomain> CorvaneFixture::AddDomain(const std::string& name) {
  auto domain = server_->KDomains()->Add();
  domain->SetName(name);
  domain->Update();
  return domain;
}

}  // namespace mindloft::test
