#pragma once

#include <wx/string.h>

#include <vector>

#include "backend/directory/Changes.h"
#include "backend/tessaline/Text.h"

namespace mindloft {

/// Those of the keys' objects that are still in the collection.
template <typename Collection>
auto FindObjects(Collection& all, const std::vector<wxString>& keys) {
  std::vector<decltype(all.Item({}))> objects;
  objects.reserve(keys.size());
  for (const auto& key : keys)
    if (auto object = all.Item(ToUtf8(key))) objects.push_back(std::move(object));
  return objects;
}

/// What a deletion of the objects names.
template <typename Objects>
std::vector<ObjectVersion> VersionsOf(const Objects& objects) {
  std::vector<ObjectVersion> versions;
  versions.reserve(objects.size());
  for (const auto& object : objects) versions.push_back({object->Stored().id, object->Stored().version});
  return versions;
}

}  // namespace mindloft
