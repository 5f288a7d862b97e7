#pragma once

#include <wx/string.h>

#include <any>
#include <cstdint>

namespace mindloft {

class DomainContexts;
class frmSysAdmin;

/// Brings tree and list up to date after an object was created, deleted or changed: only what shows the
/// object.
class RefreshHandlers {
 public:
  /// Both must outlive it.
  RefreshHandlers(frmSysAdmin& form, DomainContexts& domains) : form_(form), domains_(domains) {}

  /// Takes the handler of the kind; kinds and actions that are not known change nothing.
  void Dispatch(std::int32_t kind, std::int32_t action, const std::any& object);

  /// Brings the tree's domains up to date with the directory: those that other consoles have made, renamed or
  /// deleted take their place as well. Nodes of the others stay untouched, and so does the list.
  void ShowStoredDomains();

  /// The object of each is a shared pointer: to a DomainContext, a DGroup, a User, a User.
  void RefreshDomainNode(std::int32_t action, const std::any& object);
  void RefreshUserGroupNode(std::int32_t action, const std::any& object);
  void RefreshUserNode(std::int32_t action, const std::any& object);
  void RefreshDomainUserNode(std::int32_t action, const std::any& object);

 private:
  void RemoveDomain(const wxString& key);
  void RefreshListOf(const wxString& nodeKey);

  frmSysAdmin& form_;
  DomainContexts& domains_;
};

}  // namespace mindloft
