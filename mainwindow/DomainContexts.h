#pragma once

#include <wx/string.h>

#include <map>
#include <memory>
#include <vector>

#include "backend/corvane/DomainContext.h"
#include "backend/corvane/KDomains.h"

namespace mindloft {

/// The window's collection of knowledge domains as the logged-in user sees them, by the key of their tree
/// node.
class DomainContexts {
 public:
  explicit DomainContexts(std::shared_ptr<Corvane::KDomains> domains);

  /// Reads all domains anew, a page at a time, in the collection's order.
  void Read();
  /// Keys in the collection's order.
  const std::vector<wxString>& Keys() const { return keys_; }
  /// Nothing for an unknown key.
  std::shared_ptr<Corvane::DomainContext> Item(const wxString& key) const;
  /// The domain as it is stored now; nothing when there is none of that key.
  std::shared_ptr<Corvane::DomainContext> Stored(const wxString& key) const;
  /// Adds the context, or replaces the one of its key, and returns the key.
  wxString Put(const std::shared_ptr<Corvane::DomainContext>& context);
  /// The same for one domain that was made or changed: its key takes its place in the collection's order.
  void Update(const std::shared_ptr<Corvane::DomainContext>& context);
  /// The key after that one; empty: it is the last or unknown.
  wxString KeyAfter(const wxString& key) const;
  void Remove(const wxString& key);

  static wxString KeyOf(const Corvane::DomainContext& context);

 private:
  wxString StoredAfter(const wxString& key) const;

  std::shared_ptr<Corvane::KDomains> domains_;
  std::vector<wxString> keys_;
  std::map<wxString, std::shared_ptr<Corvane::DomainContext>> contexts_;
};

}  // namespace mindloft
