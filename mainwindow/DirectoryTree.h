#pragma once

#include <wx/string.h>

#include <memory>
#include <set>

namespace mindloft {

class WorkingArea;
class DomainContexts;
namespace Corvane {
class DomainContext;
}

/// The tree of the directory: a root with three folders, the knowledge domains below the first of them, and
/// two folders below each domain.
class DirectoryTree {
 public:
  /// Both must outlive it.
  DirectoryTree(WorkingArea& area, DomainContexts& domains) : area_(area), domains_(domains) {}

  /// Clears the tree and adds the root with its folders.
  void BuildRoot();
  /// Adds a node for every domain of the collection.
  void DisplayTreeDomains();
  /// Adds the two folders of a domain's node.
  void DisplayDomainFixChild(int domainIndex);

  /// Adds the node of one domain as the last.
  void AddDomain(const std::shared_ptr<Corvane::DomainContext>& context);
  /// Shows name and image of a domain that is in the tree already; adds it otherwise. Either way its place is
  /// that among the domains.
  void UpdateDomain(const std::shared_ptr<Corvane::DomainContext>& context);
  void RemoveDomain(const wxString& key);

  /// The kind of a node, as the registry of kinds knows it: its fixed key, or keys::kAnyDomain.
  wxString KindKey(int index) const;
  bool IsDomain(int index) const;
  /// The key of the domain that a node is or lies below; empty for the others.
  wxString DomainKey(int index) const;
  /// The child of that key; -1: none. -1 as the parent stands for no node: it finds the root.
  int Child(int parent, const wxString& key) const;
  int DomainNode(const wxString& key) const;

  /// Which nodes are open, which is selected and which is the topmost on the screen, by the keys on the way
  /// to them.
  struct State {
    std::set<wxString> expanded;
    wxString selected, top;
    bool selectedShown = false;  ///< it is on the screen
  };
  State Remember() const;
  /// Opens and selects what is still there; where the selected node is gone, its nearest parent.
  void Restore(const State& state);

 private:
  wxString Path(int index) const;
  int NodeAt(const wxString& path) const;

  WorkingArea& area_;
  DomainContexts& domains_;
};

}  // namespace mindloft
