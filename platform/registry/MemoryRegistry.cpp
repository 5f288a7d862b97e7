#include "platform/RegistryStore.h"
#include "platform/registry/RegistryTree.h"

namespace mindloft::platform {
namespace {

class MemoryStore : public RegistryStore {
 public:
  std::optional<RegistryValue> Get(RegistryRoot root, const std::string& key,
                                   const std::string& name) const override {
    return tree_.Get(root, key, name);
  }
  void Set(RegistryRoot root, const std::string& key, const std::string& name,
           const RegistryValue& value) override {
    tree_.Set(root, key, {name, value, {}});
  }
  void Delete(RegistryRoot root, const std::string& key, const std::string& name) override {
    tree_.Delete(root, key, name);
  }
  std::vector<std::pair<std::string, RegistryValue>> Values(RegistryRoot root,
                                                            const std::string& key) const override {
    return tree_.Values(root, key);
  }
  void DeleteKey(RegistryRoot root, const std::string& key) override { tree_.DeleteKey(root, key); }

 private:
  RegistryTree tree_;
};

}  // namespace

std::shared_ptr<RegistryStore> MemoryRegistry() {
  return std::make_shared<MemoryStore>();
}

}  // namespace mindloft::platform
