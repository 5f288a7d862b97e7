#include "editors/members/OverlaidUsers.h"

#include <algorithm>
#include <utility>

namespace mindloft {
namespace {

/// Rows that are read at a time.
constexpr std::int64_t kReadRows = 1024;

}  // namespace

OverlaidUsers::OverlaidUsers(std::shared_ptr<ExplorerRows> stored, const MemberItems& items,
                             MemberStatu coming)
    : stored_(std::move(stored)), items_(items), coming_(coming) {
  ItemsChanged();
}

void OverlaidUsers::ItemsChanged() {
  first_ = ListedUsers(items_.Rows(coming_));
  first_.Sort(column_, descending_);
  first_.Filter(filter_);
  hiddenStale_ = true;
}

// A stored user with an item is never shown as stored: somebody else may have stored one who comes.
void OverlaidUsers::FindHidden() {
  hiddenStale_ = false;
  hidden_.clear();
  if (items_.Empty()) return;
  std::vector<wxString> users;
  users.reserve(items_.Count());
  for (const auto& item : items_) users.push_back(item.Id());
  hidden_ = stored_->PositionsOf(users);
  std::erase(hidden_, -1);
  std::sort(hidden_.begin(), hidden_.end());
}

bool OverlaidUsers::IsHidden(std::int64_t place) const {
  return std::binary_search(hidden_.begin(), hidden_.end(), place);
}

std::int64_t OverlaidUsers::NextShown(std::int64_t place) const {
  for (auto next = std::lower_bound(hidden_.begin(), hidden_.end(), place);
       next != hidden_.end() && *next == place; ++next)
    ++place;
  return place;
}

std::int64_t OverlaidUsers::PlaceOf(std::int64_t shown) const {
  // Before the n-th one left out there are as many shown users as its place is greater than n.
  std::size_t low = 0, high = hidden_.size();
  while (low < high) {
    const std::size_t middle = (low + high) / 2;
    if (hidden_[middle] - static_cast<std::int64_t>(middle) <= shown)
      low = middle + 1;
    else
      high = middle;
  }
  return shown + static_cast<std::int64_t>(low);
}

std::int64_t OverlaidUsers::ShownBefore(std::int64_t place) const {
  return place - (std::lower_bound(hidden_.begin(), hidden_.end(), place) - hidden_.begin());
}

std::int64_t OverlaidUsers::Count() {
  // The list asks when it reads anew: others may have changed what is stored.
  FindHidden();
  return first_.Count() + stored_->Count() - static_cast<std::int64_t>(hidden_.size());
}

std::int64_t OverlaidUsers::TotalCount() {
  std::int64_t going = 0;
  for (const auto& item : items_) going += item.Statu() != coming_;
  return first_.TotalCount() + std::max<std::int64_t>(stored_->TotalCount() - going, 0);
}

std::vector<ExplorerRow> OverlaidUsers::Page(std::int64_t first, std::int64_t count) {
  NeedHidden();
  std::vector<ExplorerRow> rows = first_.Page(first, count);
  std::int64_t place = PlaceOf(std::max<std::int64_t>(first - first_.Count(), 0));
  while (static_cast<std::int64_t>(rows.size()) < count) {
    place = NextShown(place);
    const std::int64_t wanted =
        std::min<std::int64_t>(count - static_cast<std::int64_t>(rows.size()), kReadRows);
    std::vector<ExplorerRow> page = stored_->Page(place, wanted);
    for (auto& row : page)
      if (!IsHidden(place++)) rows.push_back(std::move(row));
    if (static_cast<std::int64_t>(page.size()) < wanted) break;
  }
  return rows;
}

void OverlaidUsers::Sort(int column, bool descending) {
  column_ = column;
  descending_ = descending;
  first_.Sort(column, descending);
  stored_->Sort(column, descending);
  hiddenStale_ = true;
}

void OverlaidUsers::Filter(const wxString& text) {
  filter_ = text;
  first_.Filter(text);
  stored_->Filter(text);
  hiddenStale_ = true;
}

std::int64_t OverlaidUsers::FindPrefix(const wxString& prefix, std::int64_t from) {
  NeedHidden();
  const std::int64_t found = FindForward(prefix, from);
  return found >= 0 || from <= 0 ? found : FindForward(prefix, 0);
}

std::int64_t OverlaidUsers::FindForward(const wxString& prefix, std::int64_t from) {
  const std::int64_t comingCount = first_.Count();
  if (from < comingCount) {
    const std::int64_t found = first_.FindPrefix(prefix, from);
    if (found >= from) return found;
  }
  const std::int64_t start = PlaceOf(std::max<std::int64_t>(from - comingCount, 0));
  const std::int64_t found = stored_->FindPrefix(prefix, start);
  if (found < start) return -1;
  // Those of one beginning stand together, so that the next shown one has it or none has.
  const std::int64_t shown = NextShown(found);
  if (shown != found && stored_->FindPrefix(prefix, shown) != shown) return -1;
  return comingCount + ShownBefore(shown);
}

std::int64_t OverlaidUsers::PositionOf(const wxString& key) {
  const std::int64_t coming = first_.PositionOf(key);
  if (coming >= 0) return coming;
  NeedHidden();
  return ShownOf(stored_->PositionOf(key));
}

std::vector<std::int64_t> OverlaidUsers::PositionsOf(const std::vector<wxString>& keys) {
  NeedHidden();
  std::vector<std::int64_t> positions = stored_->PositionsOf(keys);
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const std::int64_t coming = first_.PositionOf(keys[i]);
    positions[i] = coming >= 0 ? coming : ShownOf(positions[i]);
  }
  return positions;
}

std::int64_t OverlaidUsers::ShownOf(std::int64_t place) {
  return place < 0 || IsHidden(place) ? -1 : first_.Count() + ShownBefore(place);
}

}  // namespace mindloft
