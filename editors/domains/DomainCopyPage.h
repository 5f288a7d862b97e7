#pragma once

#include <functional>

#include "backend/directory/Changes.h"

class wxCheckBox;

namespace mindloft {

class FormDialog;
class ctExplorer;

/// The page of a new domain on which the user chooses an existing one and what the new one takes over from
/// it: groups with their privileges, users, and the groups' members, who need both.
class DomainCopyPage {
 public:
  /// The form holds the controls and must outlive the page. `changed` is called when the choice is another.
  DomainCopyPage(const FormDialog& form, std::function<void()> changed);

  /// Lists the domains that are stored; the captions are of the current language.
  void Display();
  /// What is chosen; without a source when nothing is to be taken over.
  DomainCopy Chosen() const;
  void SetButtonStatus(bool mayChange);

 private:
  ctExplorer* ctSource = nullptr;
  wxCheckBox* chkCopyGroups = nullptr;
  wxCheckBox* chkCopyUsers = nullptr;
  wxCheckBox* chkCopyMembers = nullptr;
};

}  // namespace mindloft
