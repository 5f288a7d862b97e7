#include <algorithm>
#include <cstdlib>
#include <sstream>

#include "platform/Paths.h"
#include "platform/RegistryStore.h"
#include "platform/Unicode.h"

namespace mindloft::platform {
namespace {

/// The user's file, and below it the administrator's files for values of the machine.
class LayeredStore : public RegistryStore {
 public:
  LayeredStore() : user_(FileRegistry(ConfigFolder() / "registry")) {
    const char* folders = std::getenv("XDG_CONFIG_DIRS");
    std::istringstream list(folders && *folders ? folders : "/etc/xdg");
    for (std::string folder; std::getline(list, folder, ':');) {
      if (folder.starts_with('/')) {
        machine_.push_back(FileRegistry(std::filesystem::path(folder) / "mindloft" / "registry"));
      }
    }
  }

  std::optional<RegistryValue> Get(RegistryRoot root, const std::string& key,
                                   const std::string& name) const override {
    auto value = user_->Get(root, key, name);
    if (root != RegistryRoot::LocalMachine) return value;
    for (auto store = machine_.begin(); !value && store != machine_.end(); ++store) {
      value = (*store)->Get(root, key, name);
    }
    return value;
  }

  void Set(RegistryRoot root, const std::string& key, const std::string& name,
           const RegistryValue& value) override {
    user_->Set(root, key, name, value);
  }
  void Delete(RegistryRoot root, const std::string& key, const std::string& name) override {
    user_->Delete(root, key, name);
  }
  void DeleteKey(RegistryRoot root, const std::string& key) override { user_->DeleteKey(root, key); }

  std::vector<std::pair<std::string, RegistryValue>> Values(RegistryRoot root,
                                                            const std::string& key) const override {
    auto values = user_->Values(root, key);
    if (root != RegistryRoot::LocalMachine) return values;
    for (const auto& store : machine_) {
      for (auto& value : store->Values(root, key)) {
        auto name = UpperCase(value.first);
        bool isKnown = std::any_of(values.begin(), values.end(),
                                   [&](const auto& other) { return UpperCase(other.first) == name; });
        if (!isKnown) values.push_back(std::move(value));
      }
    }
    return values;
  }

 private:
  std::shared_ptr<RegistryStore> user_;
  std::vector<std::shared_ptr<RegistryStore>> machine_;
};

}  // namespace

std::shared_ptr<RegistryStore> SystemRegistry() {
  return std::make_shared<LayeredStore>();
}

}  // namespace mindloft::platform
