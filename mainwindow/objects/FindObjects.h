#pragma once

#include <wx/string.h>

#include <vector>

#include "backend/corvane/Session.h"
#include "backend/directory/Changes.h"
#include "backend/tessaline/Text.h"

namespace mindloft {

/// The identifiers that the keys of rows stand for.
inline std::vector<ObjectId> IdsOf(const std::vector<wxString>& keys) {
  std::vector<ObjectId> ids;
  ids.reserve(keys.size());
  for (const auto& key : keys) ids.push_back(Corvane::IdFromText(ToUtf8(key)));
  return ids;
}

/// The collection's object of the first key; nothing when it has gone.
template <typename Collection>
auto FirstObject(const Collection& all, const std::vector<wxString>& keys) {
  return all.Item(keys.empty() ? std::string() : ToUtf8(keys.front()));
}

}  // namespace mindloft
