#include "tests/app/console/ConsoleFixture.h"

#include <chrono>
#include <fstream>
#include <thread>

#include "backend/directory/SqliteDirectory.h"
#include "platform/Paths.h"
#include "tests/support/Environment.h"

namespace mindloft::test {
namespace {

constexpr auto kUser = platform::RegistryRoot::CurrentUser;
constexpr char kSettings[] = "Software\\Ordwell\\Mindloft\\Settings";
constexpr char kFormPos[] = "Software\\Ordwell\\Mindloft\\Resource\\FormPos\\frmSysAdmin";
constexpr char kName[] = "root", kPassword[] = "correct horse battery";

std::filesystem::path LogFile() {
  return platform::LogFolder() / "mindloft-console.log";
}

/// False when the condition never held; the limit is reached only by a test that fails.
bool Poll(const std::function<bool()>& condition) {
  using std::chrono::steady_clock;
  const auto limit = steady_clock::now() + std::chrono::seconds(90);
  while (!condition()) {
    if (steady_clock::now() > limit) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

}  // namespace

ConsoleFixture::ConsoleFixture() {
  for (const char* name : {"CONFIG_HOME", "STATE_HOME", "DATA_HOME", "RUNTIME_DIR"}) {
    const auto folder = folder_ / name;
    std::filesystem::create_directory(folder);
    std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
    SetEnvironment(std::string("XDG_") + name, folder.string());
  }
  registry_ = platform::SystemRegistry();
}

void ConsoleFixture::SetUp() {
  savedSettings_ = registry_->Values(kUser, kSettings);
  savedFormPos_ = registry_->Values(kUser, kFormPos);
  registry_->DeleteKey(kUser, kSettings);
  registry_->DeleteKey(kUser, kFormPos);
  std::error_code none;
  const auto size = std::filesystem::file_size(LogFile(), none);
  logStart_ = none ? 0 : size;
  Set("ConnectMode", "1");
  Set("ConfigurationServer", "(local)");
  Set("AutoLoginEnabled", "1");
  Set("LoginUserName", kName);
  Set("LoginPassword", kPassword);
}

void ConsoleFixture::TearDown() {
  consoles_.clear();
  registry_->DeleteKey(kUser, kSettings);
  registry_->DeleteKey(kUser, kFormPos);
  for (const auto& [name, value] : savedSettings_) registry_->Set(kUser, kSettings, name, value);
  for (const auto& [name, value] : savedFormPos_) registry_->Set(kUser, kFormPos, name, value);
}

void ConsoleFixture::MakeDirectory() const {
  SqliteDirectory::Create(file_, {kName, kPassword});
}

void ConsoleFixture::Set(const std::string& setting, const platform::RegistryValue& value) {
  registry_->Set(kUser, kSettings, setting, value);
}

void ConsoleFixture::SetFormPos(const std::string& name, const platform::RegistryValue& value) {
  registry_->Set(kUser, kFormPos, name, value);
}

ChildProcess& ConsoleFixture::Start(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "--directory=" + platform::PathToUtf8(file_));
  return StartAlone(std::move(arguments));
}

ChildProcess& ConsoleFixture::StartAlone(std::vector<std::string> arguments) {
  return consoles_.emplace_back(program_, arguments);
}

std::filesystem::path ConsoleFixture::CopyProgram() {
  const auto folder = folder_ / "program";
  std::filesystem::create_directory(folder);
  std::filesystem::copy(program_, folder);
  std::filesystem::copy(program_.parent_path() / "resources", folder / "resources",
                        std::filesystem::copy_options::recursive);
  program_ = folder / program_.filename();
  return folder / "resources";
}

void ConsoleFixture::WaitForLog(const std::string& text, int times) {
  const bool found = Poll([&] { return CountInLog(text) >= times; });
  ASSERT_TRUE(found) << "not logged " << times << " times: " << text;
}

int ConsoleFixture::CountInLog(const std::string& text) const {
  std::ifstream log(LogFile(), std::ios::binary);
  log.seekg(static_cast<std::streamoff>(logStart_));
  int count = 0;
  for (std::string line; std::getline(log, line);) count += line.find(text) != std::string::npos;
  return count;
}

int ConsoleFixture::WaitForEnd(ChildProcess& console) {
  if (Poll([&] { return console.HasEnded(); })) return console.Wait();
  ADD_FAILURE() << "the console did not end";
  console.Kill();
  return -1;
}

ChildProcess& ConsoleFixture::WaitForEither(ChildProcess& one, ChildProcess& other) {
  EXPECT_TRUE(Poll([&] { return one.HasEnded() || other.HasEnded(); }));
  return one.HasEnded() ? one : other;
}

}  // namespace mindloft::test
