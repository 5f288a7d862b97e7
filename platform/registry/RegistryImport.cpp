#include "platform/RegistryImport.h"

#include <algorithm>

#include "backend/errors/Error.h"
#include "platform/FileAccess.h"
#include "platform/Paths.h"
#include "platform/registry/RegistryFileFormat.h"

namespace mindloft::platform {
namespace {

class EndedImport : public RegistryImport {
 public:
  bool IsRunning() const override { return false; }
};

/// Nothing when the file is missing, unreadable or damaged.
std::optional<RegistryFileFormat::Content> WholeContent(const std::filesystem::path& file) {
  try {
    const auto text = ReadWholeFile(file);
    if (!text) return {};
    auto content = RegistryFileFormat::Parse(*text);
    if (content.IsDamaged()) return {};
    return content;
  } catch (const Error&) {
    return {};
  }
}

}  // namespace

std::unique_ptr<RegistryImport> ImportWithOwnReader(const std::filesystem::path& file, RegistryStore& store) {
  const std::string name = PathToUtf8(file);
  const auto text = ReadWholeFile(file);
  if (!text) throw Error(ErrorNumber::PathAccess, "no registry file;" + name, {name});
  const auto content = RegistryFileFormat::Parse(*text);
  if (content.IsDamaged()) throw Error(ErrorNumber::Registry, "damaged registry file;" + name, {name});
  RegistryFileFormat::Import(content, store);
  return std::make_unique<EndedImport>();
}

bool IsRegistryFile(const std::filesystem::path& file) {
  return WholeContent(file).has_value();
}

bool IsImported(const std::filesystem::path& file, RegistryRoot root, const RegistryStore& store) {
  const auto content = WholeContent(file);
  if (!content) return false;
  return std::all_of(content->steps.begin(), content->steps.end(), [&](const auto& step) {
    if (step.root != root || step.kind != RegistryFileFormat::Step::Kind::Set) return true;
    return store.Get(root, step.key, step.entry.name) == step.entry.value;
  });
}

std::unique_ptr<RegistryImport> RegistryStore::Import(const std::filesystem::path& file) {
  return ImportWithOwnReader(file, *this);
}

}  // namespace mindloft::platform
