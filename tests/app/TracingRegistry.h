#pragma once

#include <string>
#include <vector>

#include "platform/RegistryStore.h"

namespace mindloft::test {

/// A registry that writes down when one of its values is read, written or deleted.
class TracingRegistry : public platform::RegistryStore {
 public:
  /// Reading adds the watched name to the trace, a change adds it with a "!".
  TracingRegistry(std::shared_ptr<RegistryStore> store, std::string watched, std::vector<std::string>& trace)
      : store_(std::move(store)), watched_(std::move(watched)), trace_(trace) {}

  std::optional<platform::RegistryValue> Get(platform::RegistryRoot root, const std::string& key,
                                             const std::string& name) const override {
    if (name == watched_) trace_.push_back(name);
    return store_->Get(root, key, name);
  }
  void Set(platform::RegistryRoot root, const std::string& key, const std::string& name,
           const platform::RegistryValue& value) override {
    if (name == watched_) trace_.push_back(name + "!");
    store_->Set(root, key, name, value);
  }
  void Delete(platform::RegistryRoot root, const std::string& key, const std::string& name) override {
    if (name == watched_) trace_.push_back(name + "!");
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
  std::vector<std::string>& trace_;
};

}  // namespace mindloft::test
