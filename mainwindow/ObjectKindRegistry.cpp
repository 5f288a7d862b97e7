#include "mainwindow/ObjectKindRegistry.h"

#include <utility>

namespace mindloft {

void ObjectKindRegistry::Add(DirectoryKind kind) {
  if (auto* present = Find(kind.key))
    *present = std::move(kind);
  else
    kinds_.push_back(std::move(kind));
}

const DirectoryKind* ObjectKindRegistry::Find(const wxString& nodeKey) const {
  for (const auto& kind : kinds_)
    if (kind.key == nodeKey) return &kind;
  return nullptr;
}

DirectoryKind* ObjectKindRegistry::Find(const wxString& nodeKey) {
  return const_cast<DirectoryKind*>(std::as_const(*this).Find(nodeKey));
}

}  // namespace mindloft
