#pragma once

#include <wx/string.h>

#include <memory>

#include "mainwindow/DirectoryKind.h"

namespace mindloft {

class WorkingArea;
class DirectoryTree;
class ObjectKindRegistry;

/// What the list shows for the selected node: columns and rows of the node's kind.
class DirectoryLists {
 public:
  /// All must outlive it.
  DirectoryLists(WorkingArea& area, const ObjectKindRegistry& kinds, const DirectoryTree& tree,
                 std::shared_ptr<Corvane::Server> server);

  /// Replaces the list's columns by the set of that node kind; the empty key means a domain.
  void AddColumn(const wxString& nodeKey);
  /// Shows the rows of the node kind.
  void ListObjects(const wxString& nodeKey, const std::shared_ptr<Corvane::DomainContext>& domain);
  /// Shows the child nodes of a node.
  void ListChildNodes(int parent);

  const std::shared_ptr<Corvane::Server>& Server() const { return server_; }
  /// Whether the list shows rows at all.
  bool IsShown() const { return static_cast<bool>(rows_); }
  /// The place of a row in the list; -1: it is not listed.
  std::int64_t PositionOf(const wxString& key) const { return rows_ ? rows_->PositionOf(key) : -1; }
  /// Whether a column of the list can be sorted by.
  bool CanSort(int column) const { return rows_ && rows_->CanSort(column); }

 private:
  void Show(std::shared_ptr<ExplorerRows> rows);

  WorkingArea& area_;
  const ObjectKindRegistry& kinds_;
  const DirectoryTree& tree_;
  std::shared_ptr<Corvane::Server> server_;
  std::shared_ptr<ExplorerRows> rows_;
};

}  // namespace mindloft
