#pragma once

#include <wx/string.h>

#include <cstdint>
#include <vector>

#include "mainwindow/DirectoryKind.h"

namespace mindloft {

class WorkingArea;
class DirectoryLists;
class DirectoryTree;
class DomainContexts;
class ObjectKindRegistry;

/// What is selected, as far as commands ask for it.
struct SelectionState {
  wxString nodeKey;                       ///< of the selected tree node; empty: none, or a domain without key
  const DirectoryKind* listed = nullptr;  ///< kind of the objects in the list; nothing: child nodes, or empty
  const DirectoryKind* target = nullptr;  ///< kind of what delete and properties are about; nothing: none
  std::int64_t targets = 0;               ///< how many of them
  std::int64_t rows = 0;                  ///< rows of the list
  KindScope scope;                        ///< with the domain of the selected node
};

/// Reads the selection of tree and list. Rows selected in the list come first; without any, an object that
/// the tree's node stands for is meant.
class SelectionReader {
 public:
  SelectionReader(WorkingArea& area, const ObjectKindRegistry& kinds, const DirectoryTree& tree,
                  const DomainContexts& domains, const DirectoryLists& lists);

  SelectionState Read() const;
  /// The keys of the selected objects, in list order. Reads pages when there are many.
  std::vector<wxString> Keys() const;
  /// The same for the rows of the list alone, whatever they are.
  std::vector<wxString> ListKeys() const;

 private:
  WorkingArea& area_;
  const ObjectKindRegistry& kinds_;
  const DirectoryTree& tree_;
  const DomainContexts& domains_;
  const DirectoryLists& lists_;
};

}  // namespace mindloft
