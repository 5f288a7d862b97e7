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

  /// What a reading has found, by key, in the collection's order.
  struct Changes {
    std::vector<wxString> shown;  ///< new domains, and those that have changed
    std::vector<wxString> gone;
  };
  /// Reads all domains anew, a page at a time, in the collection's order.
  Changes Read();
  /// Keys in the collection's order.
  const std::vector<wxString>& Keys() const { return keys_; }
  /// Nothing for an unknown key.
  std::shared_ptr<Corvane::DomainContext> Item(const wxString& key) const;
  /// The key after that one; empty: it is the last or unknown.
  wxString KeyAfter(const wxString& key) const;

  static wxString KeyOf(const Corvane::DomainContext& context);

 private:
  /// The record is as it was read: the context's own changes when somebody edits the domain.
  struct Entry {
    DomainRecord record;
    std::shared_ptr<Corvane::DomainContext> context;
  };

  std::shared_ptr<Corvane::KDomains> domains_;
  std::vector<wxString> keys_;
  std::map<wxString, Entry> entries_;
};

}  // namespace mindloft
