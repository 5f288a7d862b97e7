#pragma once

#include <wx/string.h>

#include <cstdint>
#include <list>
#include <unordered_map>
#include <vector>

#include "editors/members/UserItem.h"

namespace mindloft {

/// Pending changes of a list of members, in the order in which they were made: one item for a user at most.
class MemberItems {
 public:
  MemberItems() = default;
  explicit MemberItems(const std::vector<UserItem>& items);
  MemberItems(const MemberItems&) = delete;
  MemberItems& operator=(const MemberItems&) = delete;

  /// Nothing when the user has no item.
  const UserItem* Find(const wxString& userId) const;
  /// At the end; an item of the same user is replaced.
  void Add(UserItem item);
  void Drop(const wxString& userId);
  void Clear();

  std::size_t Count() const { return items_.size(); }
  bool Empty() const { return items_.empty(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  /// The rows of the items of that statu, in order; 0: of all.
  std::vector<ExplorerRow> Rows(std::int32_t statu) const;
  /// The identifiers of the items of that statu, joined by ";".
  wxString Ids(std::int32_t statu) const;

 private:
  std::list<UserItem> items_;
  std::unordered_map<wxString, std::list<UserItem>::iterator> places_;
};

}  // namespace mindloft
