#include "platform/ui/Sound.h"

#include <algorithm>

#include "platform/Paths.h"

namespace mindloft::platform {
namespace {

std::function<bool(const std::string&)> fakeSound;

bool IsFile(const std::filesystem::path& path) {
  std::error_code failure;
  return std::filesystem::is_regular_file(path, failure);
}

}  // namespace

std::filesystem::path FindSound(const std::string& name) {
  std::string slashed = name;
  std::replace(slashed.begin(), slashed.end(), '\\', '/');
  auto path = PathFromUtf8(slashed).lexically_normal();
  if (path.empty() || path.is_absolute() || path.has_root_path()) return path;
  if (auto beside = ProgramFolder() / path; IsFile(beside)) return beside;
  if (*path.begin() == "resources") {
    if (auto installed = ResourceFolder() / path.lexically_relative("resources"); IsFile(installed))
      return installed;
  }
  return path;
}

bool PlaySoundFile(const std::string& name) {
  if (fakeSound) return fakeSound(name);
  // To the system an empty name means to stop what plays.
  return !name.empty() && PlayInSystem(FindSound(name));
}

FakeSound::FakeSound(std::function<bool(const std::string&)> play) {
  fakeSound = std::move(play);
}
FakeSound::~FakeSound() {
  fakeSound = nullptr;
}

}  // namespace mindloft::platform
