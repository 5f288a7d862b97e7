#include "backend/corvane/DirectoryProvider.h"

#include <utility>

#include "backend/corvane/LocalDirectory.h"
#include "backend/directory/SqliteDirectory.h"
#include "backend/errors/Error.h"

namespace mindloft::Corvane {
namespace {

constexpr int kLocalNetwork = 1;

}  // namespace

DirectoryProvider EmbeddedDirectoryProvider(std::filesystem::path file) {
  return EmbeddedDirectoryProvider([file = std::move(file)] { return SqliteDirectory::Open(file); });
}

DirectoryProvider EmbeddedDirectoryProvider(std::function<std::shared_ptr<Directory>()> open) {
  return [open = std::move(open)](const ConnectionTarget& target) {
    if (target.connectMode == kLocalNetwork && IsLocalServer(target.configurationServer)) return open();
    const auto& server = target.connectMode == kLocalNetwork ? target.configurationServer : target.webAddress;
    throw Error(ErrorNumber::ServerUnreachable, "mode " + std::to_string(target.connectMode), {server});
  };
}

}  // namespace mindloft::Corvane
