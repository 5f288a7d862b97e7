#include "tests/support/gui/PrivateServices.h"

#include <fstream>
#include <sstream>

namespace mindloft::test {

void PrivateServices::SetUp() {
  registry_ = platform::MemoryRegistry();
  secrets_ = platform::FileSecretStore(folder_ / "secrets");
  RestartServices();
}

void PrivateServices::TearDown() {
  ResetServices();
}

void PrivateServices::RestartServices() {
  ResetServices({registry_, folder_ / "log", LanguageFolder(), secrets_});
}

std::filesystem::path PrivateServices::LanguageFolder() {
  return std::filesystem::path(MINDLOFT_SOURCE_FOLDER) / "resources" / "languages";
}

std::string PrivateServices::LoggedText() const {
  std::ifstream file(GetUtility().LogFilePath());
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

}  // namespace mindloft::test
