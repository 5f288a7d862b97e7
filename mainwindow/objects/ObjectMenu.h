#pragma once

#include <wx/string.h>

#include <functional>

namespace mindloft {

class ObjectCommands;
class SelectionReader;

/// The handlers of the menu items for objects: each leads to one of the three object commands, with the kind
/// and the domain that it concerns. Menus, tools and keys reach them through the table of commands, which
/// traps their errors.
class ObjectMenu {
 public:
  /// Both must outlive it.
  ObjectMenu(ObjectCommands& commands, const SelectionReader& selection)
      : commands_(commands), selection_(selection) {}

  // For whatever is selected.
  void mnuFileNew_Click();
  void mnuFileDelete_Click();
  void mnuFileProperties_Click();

  // For one kind each.
  void mnuDomainaddNew_Click();
  void mnuUseraddNew_Click();
  void mnuGroupaddNew_Click();
  void mnuDUseraddNew_Click();
  void mnuDomainDelete_Click();
  void mnuUserDelete_Click();
  void mnuGroupDelete_Click();
  void mnuDUserDelete_Click();
  void mnuDomainProperties_Click();
  void mnuUserProperties_Click();
  void mnuRoleProperties_Click();
  void mnuGroupProperties_Click();
  void mnuDUserProperties_Click();

  /// The handler of the menu item of that name; empty for an unknown one.
  std::function<void()> Handler(const wxString& name);

 private:
  /// New, in the domain whose folder is selected.
  void NewInDomain(const wxString& kind);
  void Properties(const wxString& kind);

  ObjectCommands& commands_;
  const SelectionReader& selection_;
};

}  // namespace mindloft
