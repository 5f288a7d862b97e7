#include "editors/members/MemberItems.h"

#include <utility>

#include "backend/tessaline/Services.h"

namespace mindloft {

MemberItems::MemberItems(const std::vector<UserItem>& items) {
  for (const auto& item : items) Add(item);
}

const UserItem* MemberItems::Find(const wxString& userId) const {
  const auto place = places_.find(userId);
  return place == places_.end() ? nullptr : &*place->second;
}

void MemberItems::Add(UserItem item) {
  Drop(item.Id());
  const auto place = items_.insert(items_.end(), std::move(item));
  places_[place->Id()] = place;
}

void MemberItems::Drop(const wxString& userId) {
  const auto place = places_.find(userId);
  if (place == places_.end()) return;
  const auto item = place->second;
  places_.erase(place);
  items_.erase(item);
}

void MemberItems::Clear() {
  places_.clear();
  items_.clear();
}

std::vector<ExplorerRow> MemberItems::Rows(std::int32_t statu) const {
  std::vector<ExplorerRow> rows;
  for (const auto& item : items_)
    if (statu == 0 || item.Statu() == statu) rows.push_back(item.Row());
  return rows;
}

wxString MemberItems::Ids(std::int32_t statu) const {
  wxString ids;
  for (const auto& item : items_) {
    if (item.Statu() != statu) continue;
    if (!GetStringHelper().IsBlank(ids)) ids += ';';
    ids += item.Id();
  }
  return ids;
}

}  // namespace mindloft
