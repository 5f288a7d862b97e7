#include "tests/platform/Child.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <thread>

#include "platform/Paths.h"
#include "platform/RegistryStore.h"
#include "platform/SecretStore.h"
#include "platform/ui/SingleInstance.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using Arguments = std::vector<std::string>;

void WaitForFile(const std::string& name) {
  while (!std::filesystem::exists(name)) std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

/// registry FILE PREFIX COUNT: sets COUNT values.
int FillRegistry(const Arguments& arguments) {
  auto store = platform::FileRegistry(arguments[1]);
  for (int i = 0; i < std::stoi(arguments[3]); ++i) {
    store->Set(platform::RegistryRoot::CurrentUser, "Software\\Both", arguments[2] + std::to_string(i),
               static_cast<std::uint32_t>(i));
  }
  return 0;
}

/// first TOPIC GO ANSWER END: at the file GO tries to be the first, writes "1" or "0" to ANSWER, and stays
/// until the file END is there.
int TryToBeFirst(const Arguments& arguments) {
  WaitForFile(arguments[2]);
  platform::SingleInstance instance("Pellacor", arguments[1]);
  std::ofstream(arguments[3] + ".new") << (instance.IsAnotherRunning() ? "0" : "1");
  std::filesystem::rename(arguments[3] + ".new", arguments[3]);
  WaitForFile(arguments[4]);
  return 0;
}

/// hang TOPIC READY END: serves, but its main loop never runs.
int Hang(const Arguments& arguments) {
  platform::SingleInstance instance("Pellacor", arguments[1]);
  if (!instance.Serve([](const std::string&) {})) return 1;
  std::ofstream(arguments[2]) << "ready";
  WaitForFile(arguments[3]);
  return 0;
}

/// send TOPIC FILE: hands the file's content to the first instance.
int Send(const Arguments& arguments) {
  std::ifstream file(arguments[2], std::ios::binary);
  std::string text((std::istreambuf_iterator<char>(file)), {});
  platform::SingleInstance instance("Pellacor", arguments[1]);
  if (!instance.IsAnotherRunning()) return 2;
  return instance.SendToFirst(text) ? 0 : 1;
}

/// secrets: keeps a secret as the system does, and tells where.
int KeepSecret(const Arguments&) {
  const auto store = platform::SystemSecretStore();
  const std::string secret = "pass \xF0\x9F\x94\x91 word";
  const auto token = store->Protect(secret);
  std::cout << "kept in " << token.substr(0, token.find(':')) << std::endl;
  const bool found = platform::SystemSecretStore()->Reveal(token) == secret;
  store->Forget(token);
  return found && !store->Reveal(token) ? 0 : 1;
}

}  // namespace

Child::Child(const std::vector<std::string>& arguments)
    : process_(ProgramBeside("platform_tests"), [&] {
        auto all = arguments;
        all.insert(all.begin(), "--child");
        return all;
      }()) {}

int Child::Wait() {
  // Many replacements of a file take their time on a slow disk.
  for (int patience = 6; patience > 0 && !process_.HasEnded(); --patience) {
    try {
      WaitFor([this] { return process_.HasEnded(); }, "a child process");
    } catch (const std::runtime_error&) {
    }
  }
  return process_.HasEnded() ? process_.Wait() : -1;
}

std::optional<int> RunAsChild(int argc, char** argv) {
  if (argc < 3 || std::string(argv[1]) != "--child") return {};
  Arguments arguments(argv + 2, argv + argc);
  if (arguments[0] == "registry") return FillRegistry(arguments);
  if (arguments[0] == "secrets") return KeepSecret(arguments);
  if (arguments[0] == "first") return TryToBeFirst(arguments);
  if (arguments[0] == "hang") return Hang(arguments);
  if (arguments[0] == "send") return Send(arguments);
  return 100;
}

}  // namespace mindloft::test
