#include <windows.h>

#include <algorithm>
#include <cstring>

#include "backend/errors/Error.h"
#include "platform/RegistryImport.h"
#include "platform/RegistryStore.h"
#include "platform/registry/RegistryNames.h"
#include "platform/windows/RegistryEditor.h"
#include "platform/windows/Wide.h"

namespace mindloft::platform {
namespace {

/// The longest name of a value, in UTF-16 units, with its end.
constexpr DWORD LongestName = 16384;

HKEY Hive(RegistryRoot root) {
  return root == RegistryRoot::CurrentUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

void Check(LSTATUS status, const char* what, const std::string& key) {
  if (status == ERROR_SUCCESS) return;
  throw Error(ErrorNumber::Registry,
              std::string(what) + ";" + key + ";" + SystemErrorText(static_cast<DWORD>(status)), {key});
}

/// An open key; false when it could not be opened.
class Key {
 public:
  Key() = default;
  ~Key() {
    if (key_) RegCloseKey(key_);
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  LSTATUS Open(RegistryRoot root, const std::string& key, REGSAM rights) {
    return RegOpenKeyExW(Hive(root), Wide(NormalKey(key)).c_str(), 0, rights | KEY_WOW64_64KEY, &key_);
  }
  LSTATUS Create(RegistryRoot root, const std::string& key) {
    return RegCreateKeyExW(Hive(root), Wide(CheckedKey(key)).c_str(), 0, nullptr, 0,
                           KEY_SET_VALUE | KEY_WOW64_64KEY, nullptr, &key_, nullptr);
  }
  HKEY Get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

RegistryValue Decoded(DWORD type, const std::vector<BYTE>& data) {
  if (type == REG_SZ || type == REG_EXPAND_SZ) {
    std::wstring text(data.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
    while (text.ends_with(L'\0')) text.pop_back();  // who wrote it may have written none, or several
    return Narrow(text);
  }
  if (type == REG_DWORD && data.size() == sizeof(DWORD)) {
    std::uint32_t number;
    std::memcpy(&number, data.data(), sizeof number);
    return number;
  }
  return OtherRegistryType();
}

std::optional<RegistryValue> Read(const Key& key, const std::wstring& name) {
  DWORD type = 0;
  DWORD size = 256;
  std::vector<BYTE> data;
  LSTATUS status = ERROR_MORE_DATA;
  // Another process may make it longer between two calls.
  while (status == ERROR_MORE_DATA) {
    data.resize(size);
    status = RegQueryValueExW(key.Get(), name.c_str(), nullptr, &type, data.data(), &size);
  }
  if (status != ERROR_SUCCESS) return {};
  data.resize(size);
  return Decoded(type, data);
}

class WindowsRegistry : public RegistryStore {
 public:
  std::optional<RegistryValue> Get(RegistryRoot root, const std::string& key,
                                   const std::string& name) const override {
    Key open;
    if (open.Open(root, key, KEY_QUERY_VALUE) != ERROR_SUCCESS) return {};
    return Read(open, Wide(name));
  }

  void Set(RegistryRoot root, const std::string& key, const std::string& name,
           const RegistryValue& value) override {
    auto valueName = Wide(CheckedValueName(name));
    Key open;
    Check(open.Create(root, key), "creating a key", key);
    DWORD type = REG_BINARY;
    std::wstring text;
    const void* data = nullptr;
    std::size_t size = 0;
    if (const auto* number = std::get_if<std::uint32_t>(&value)) {
      type = REG_DWORD;
      data = number;
      size = sizeof *number;
    } else if (const auto* utf8 = std::get_if<std::string>(&value)) {
      type = REG_SZ;
      text = Wide(*utf8);
      data = text.c_str();
      size = (text.size() + 1) * sizeof(wchar_t);
    }
    Check(RegSetValueExW(open.Get(), valueName.c_str(), 0, type, static_cast<const BYTE*>(data),
                         static_cast<DWORD>(size)),
          "writing a value", key);
  }

  void Delete(RegistryRoot root, const std::string& key, const std::string& name) override {
    Key open;
    auto status = open.Open(root, key, KEY_SET_VALUE);
    if (status == ERROR_SUCCESS) status = RegDeleteValueW(open.Get(), Wide(name).c_str());
    if (status != ERROR_FILE_NOT_FOUND) Check(status, "deleting a value", key);
  }

  std::vector<std::pair<std::string, RegistryValue>> Values(RegistryRoot root,
                                                            const std::string& key) const override {
    std::vector<std::pair<std::string, RegistryValue>> values;
    Key open;
    if (open.Open(root, key, KEY_QUERY_VALUE) != ERROR_SUCCESS) return values;
    std::wstring name(LongestName, L'\0');
    for (DWORD index = 0;; ++index) {
      auto length = LongestName;
      if (RegEnumValueW(open.Get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
          ERROR_SUCCESS) {
        return values;
      }
      if (auto value = Read(open, name.substr(0, length))) {
        values.emplace_back(Narrow({name.data(), length}), std::move(*value));
      }
    }
  }

  void DeleteKey(RegistryRoot root, const std::string& key) override {
    auto status = RegDeleteTreeW(Hive(root), Wide(CheckedKeyToDelete(key)).c_str());
    if (status != ERROR_FILE_NOT_FOUND) Check(status, "deleting a key", key);
  }

  std::unique_ptr<RegistryImport> Import(const std::filesystem::path& file) override {
    return StartRegistryEditor(file);
  }
};

}  // namespace

std::shared_ptr<RegistryStore> SystemRegistry() {
  return std::make_shared<WindowsRegistry>();
}

}  // namespace mindloft::platform
