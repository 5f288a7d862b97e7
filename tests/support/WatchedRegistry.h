#pragma once

#include <functional>
#include <string>

#include "platform/RegistryStore.h"

namespace mindloft::test {

/// A registry that tells when one of its values is about to be read or changed.
class WatchedRegistry : public platform::RegistryStore {
 public:
  enum class Access { Read, Change };

  WatchedRegistry(std::shared_ptr<RegistryStore> store, std::string watched, std::function<void(Access)> tell)
      : store_(std::move(store)), watched_(std::move(watched)), tell_(std::move(tell)) {}

  std::optional<platform::RegistryValue> Get(platform::RegistryRoot root, const std::string& key,
                                             const std::string& name) const override {
    if (name == watched_) tell_(Access::Read);
    return store_->Get(root, key, name);
  }
  void Set(platform::RegistryRoot root, const std::string& key, const std::string& name,
           const platform::RegistryValue& value) override {
    if (name == watched_) tell_(Access::Change);
    store_->Set(root, key, name, value);
  }
  void Delete(platform::RegistryRoot root, const std::string& key, const std::string& name) override {
    if (name == watched_) tell_(Access::Change);
    store_->Delete(root, key, name);
  }
  std::vector<std::pair<std::string, platform::RegistryValue>> Values(platform::RegistryRoot root,
                                                                      const std::string& key) const override {
    return store_->Values(root, key);
  }
  void DeleteKey(platform::RegistryRoot root, const std::string& key) override {
    store_->DeleteKey(root, key);
  }

 private:
  std::shared_ptr<RegistryStore> store_;
  std::string watched_;
  std::function<void(Access)> tell_;
};

}  // namespace mindloft::test
