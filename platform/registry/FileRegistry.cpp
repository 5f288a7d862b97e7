#include <algorithm>
#include <ctime>

#include "backend/errors/Error.h"
#include "platform/Clock.h"
#include "platform/FileAccess.h"
#include "platform/Paths.h"
#include "platform/RegistryStore.h"
#include "platform/registry/RegistryFileFormat.h"
#include "platform/registry/RegistryNames.h"
#include "platform/registry/RegistryTree.h"

namespace mindloft::platform {
namespace {

std::filesystem::path WithSuffix(std::filesystem::path file, const std::string& suffix) {
  return file += suffix;
}

/// Every call looks at the file anew, and parses it again when it has changed; every change reads, changes
/// and replaces it under a lock. So processes that share it see each other's values and lose none.
class FileStore : public RegistryStore {
 public:
  explicit FileStore(std::filesystem::path file) : file_(std::move(file)) {}

  std::optional<RegistryValue> Get(RegistryRoot root, const std::string& key,
                                   const std::string& name) const override {
    return Reread() ? tree_.Get(root, key, name) : std::nullopt;
  }

  std::vector<std::pair<std::string, RegistryValue>> Values(RegistryRoot root,
                                                            const std::string& key) const override {
    if (!Reread()) return {};
    return tree_.Values(root, key);
  }

  void Set(RegistryRoot root, const std::string& key, const std::string& name,
           const RegistryValue& value) override {
    Change([&] {
      tree_.Set(root, key, {name, value, {}});
      return true;
    });
  }

  void Delete(RegistryRoot root, const std::string& key, const std::string& name) override {
    Change([&] { return tree_.Delete(root, key, name); });
  }

  void DeleteKey(RegistryRoot root, const std::string& key) override {
    CheckedKeyToDelete(key);
    Change([&] { return tree_.DeleteKey(root, key); });
  }

 private:
  void Read() const {
    auto text = ReadWholeFile(file_).value_or(std::string());
    if (isParsed_ && text == text_) return;
    auto content = RegistryFileFormat::Parse(text);
    tree_ = RegistryFileFormat::Tree(content);
    isDamaged_ = content.IsDamaged();
    text_ = std::move(text);
    isParsed_ = true;
  }

  bool Reread() const {
    try {
      Read();
      return true;
    } catch (const Error&) {
      return false;
    }
  }

  /// Under the lock: reads, changes, and writes when `action` says that there is something to write.
  template <typename Action>
  void Change(Action action) {
    try {
      std::error_code exists;
      std::filesystem::create_directories(file_.parent_path(), exists);
      FileLock lock(WithSuffix(file_, ".lock"));
      Read();
      isParsed_ = false;  // until the change is in the file
      if (action()) {
        if (isDamaged_) KeepAside();
        auto text = RegistryFileFormat::Write(tree_);
        ReplaceWholeFile(file_, text);
        text_ = std::move(text);
        isDamaged_ = false;
      }
      isParsed_ = true;
    } catch (const Error& error) {
      if (error.Number() == ErrorNumber::Registry) throw;
      throw Error(ErrorNumber::Registry, error.Description(), error.Parameters());
    }
  }

  /// The file as it is, with all that could not be read of it, under a name of its own.
  void KeepAside() const {
    auto seconds = static_cast<std::time_t>(NowMilliseconds() / 1000);
    char time[32];
    std::strftime(time, sizeof time, "%Y%m%d-%H%M%S", std::gmtime(&seconds));
    auto name = WithSuffix(file_, std::string(".damaged-") + time);
    for (int i = 2; std::filesystem::exists(name); ++i) {
      name = WithSuffix(file_, std::string(".damaged-") + time + "-" + std::to_string(i));
    }
    ReplaceWholeFile(name, text_);
  }

  std::filesystem::path file_;
  mutable RegistryTree tree_;
  mutable std::string text_;
  mutable bool isParsed_ = false;
  mutable bool isDamaged_ = false;
};

}  // namespace

std::shared_ptr<RegistryStore> FileRegistry(std::filesystem::path file) {
  return std::make_shared<FileStore>(std::move(file));
}

}  // namespace mindloft::platform
