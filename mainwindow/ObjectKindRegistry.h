#pragma once

#include <list>

#include "mainwindow/DirectoryKind.h"

namespace mindloft {

/// The kinds of directory objects, by the key of the tree node that lists them. A new kind is one call of
/// Add; columns, rows, menus and commands follow from it.
class ObjectKindRegistry {
 public:
  /// Replaces a kind of the same key.
  void Add(DirectoryKind kind);
  /// Nothing for an unknown key. A domain's own node has the key keys::kAnyDomain.
  const DirectoryKind* Find(const wxString& nodeKey) const;
  /// For what is to be added to a registration later, such as an editor.
  DirectoryKind* Find(const wxString& nodeKey);
  /// In the order of registration; addresses stay.
  const std::list<DirectoryKind>& All() const { return kinds_; }

 private:
  std::list<DirectoryKind> kinds_;
};

/// Registers the kinds that the console knows.
void RegisterObjectKinds(ObjectKindRegistry& registry);

}  // namespace mindloft
