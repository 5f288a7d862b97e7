#include "platform/registry/RegistryTree.h"

#include "platform/Unicode.h"
#include "platform/registry/RegistryNames.h"

namespace mindloft::platform {

const RegistryTree::Key* RegistryTree::FindKey(RegistryRoot root, const std::string& key) const {
  auto found = byPath_.find({root, UpperCase(NormalKey(key))});
  return found == byPath_.end() ? nullptr : &*found->second;
}

const RegistryEntry* RegistryTree::Find(RegistryRoot root, const std::string& key,
                                        const std::string& name) const {
  const auto* at = FindKey(root, key);
  if (!at) return nullptr;
  auto found = at->byName.find(UpperCase(name));
  return found == at->byName.end() ? nullptr : &*found->second;
}

void RegistryTree::Set(RegistryRoot root, const std::string& key, RegistryEntry entry) {
  auto path = CheckedKey(key);
  entry.name = CheckedValueName(entry.name);
  if (auto* text = std::get_if<std::string>(&entry.value)) {
    *text = CleanUtf8(*text);
    while (text->ends_with('\0')) text->pop_back();
  }
  auto [at, isNewKey] = byPath_.try_emplace({root, UpperCase(path)});
  if (isNewKey) at->second = keys_.insert(keys_.end(), Key{root, path, {}, {}});
  auto& holder = *at->second;
  auto [place, isNew] = holder.byName.try_emplace(UpperCase(entry.name));
  if (isNew) {
    place->second = holder.entries.insert(holder.entries.end(), std::move(entry));
  } else {
    place->second->value = std::move(entry.value);
    place->second->raw = std::move(entry.raw);
  }
}

bool RegistryTree::Delete(RegistryRoot root, const std::string& key, const std::string& name) {
  auto at = byPath_.find({root, UpperCase(NormalKey(key))});
  if (at == byPath_.end()) return false;
  auto& names = at->second->byName;
  auto found = names.find(UpperCase(name));
  if (found == names.end()) return false;
  at->second->entries.erase(found->second);
  names.erase(found);
  return true;
}

bool RegistryTree::DeleteKey(RegistryRoot root, const std::string& key) {
  auto path = UpperCase(CheckedKeyToDelete(key));
  auto below = path + "\\";
  bool any = false;
  for (auto at = byPath_.lower_bound({root, path}); at != byPath_.end() && at->first.first == root;) {
    const auto& candidate = at->first.second;
    if (candidate == path || candidate.starts_with(below)) {
      keys_.erase(at->second);
      at = byPath_.erase(at);
      any = true;
    } else if (candidate.starts_with(path)) {
      ++at;  // a key whose name only begins alike
    } else {
      break;
    }
  }
  return any;
}

std::optional<RegistryValue> RegistryTree::Get(RegistryRoot root, const std::string& key,
                                               const std::string& name) const {
  const auto* entry = Find(root, key, name);
  return entry ? std::optional(entry->value) : std::nullopt;
}

std::vector<std::pair<std::string, RegistryValue>> RegistryTree::Values(RegistryRoot root,
                                                                        const std::string& key) const {
  std::vector<std::pair<std::string, RegistryValue>> values;
  if (const auto* at = FindKey(root, key)) {
    for (const auto& entry : at->entries) values.emplace_back(entry.name, entry.value);
  }
  return values;
}

}  // namespace mindloft::platform
