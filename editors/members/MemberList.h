#pragma once

#include <wx/string.h>

#include <functional>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

#include "controls/explorer/ExplorerRows.h"
#include "editors/members/ListOwner.h"
#include "editors/members/MemberItems.h"

class wxButton;
class wxStaticText;
class wxWindow;

namespace mindloft {

class OverlaidUsers;
class ctExplorer;

/// The members page of a sheet: `ctUser` lists the members as they will be, `lblCount` counts them, `cmdAdd`
/// adds users with the picker and `cmdRemove` removes the selected ones. What is pending is stored as
/// additions and removals only.
class MemberList {
 public:
  /// The controls are found in the sheet, which must outlive the list; `objectName` is the sheet's, for error
  /// reports. `changed` is called when members were added or removed.
  MemberList(const wxWindow& sheet, const char* objectName, std::function<void()> changed);
  ~MemberList();

  /// Whose members are listed; before anything else.
  void SetOwner(ListOwner owner);
  void InitUserList();
  /// Fills the list with the current members.
  void DisplayUsers();
  /// Takes the captions in the current language.
  void LoadInfo();
  /// Whether members can be added and removed.
  void Enable(bool enabled);

  /// Those of the users who are stored as members: one question for all.
  std::unordered_set<wxString> StoredMembers(const std::vector<ExplorerRow>& users) const;
  /// Whether a user of that identifier is in the list already; `stored`: see StoredMembers.
  bool IfUserExist(const wxString& id, const std::unordered_set<wxString>& stored) const;
  /// The users selected in `ctUser`.
  std::vector<ExplorerRow> SelectedItems() const;

  /// Whether members were added or removed since the last save.
  bool Changed() const { return changed_; }
  /// The changes that a save would store; adding and removing the same user leaves none.
  const MemberItems& Pending() const { return changedMembers_; }
  /// Stores the pending changes as one change of the owner and lists the members as they are stored then.
  /// False: the user has cancelled a long change; nothing is stored, and the changes are still pending.
  bool Save();
  void ClearChanged() { changed_ = false; }

 private:
  void cmdAdd_Click();
  /// Drops those of the disabled accounts that the user does not want after all.
  void AskAboutDisabled(std::vector<ExplorerRow>& picked);
  void cmdRemove_Click();
  void MembersChanged();
  void ReloadMembers();
  void ShowCounts();

  const char* objectName_;
  ctExplorer& ctUser_;
  wxStaticText& lblCount_;
  wxButton& cmdAdd_;
  wxButton& cmdRemove_;
  std::function<void()> onChange_;
  ListOwner owner_;
  MemberItems changedMembers_;
  std::shared_ptr<OverlaidUsers> currentMembers_;
  std::string listedOwner_;  ///< its identifier when `currentMembers_` were made
  bool changed_ = false;
};

}  // namespace mindloft
