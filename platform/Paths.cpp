#include "platform/Paths.h"

#include <string>

namespace mindloft::platform {

std::filesystem::path ResourceFolder() {
  auto beside = ProgramFolder() / "resources";
  std::error_code failure;
  if (std::filesystem::is_directory(beside, failure)) return beside;
  auto installed = (ProgramFolder() / ".." / "share" / "mindloft" / "resources").lexically_normal();
  return std::filesystem::is_directory(installed, failure) ? installed : beside;
}

std::filesystem::path PathFromUtf8(const std::string& utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string PathToUtf8(const std::filesystem::path& path) {
  auto text = path.u8string();
  return std::string(text.begin(), text.end());
}

}  // namespace mindloft::platform
