#include "editors/members/ListedUsers.h"

#include <wx/tokenzr.h>

#include <algorithm>

#include "backend/tessaline/Text.h"
#include "controls/rows/RecordRows.h"

namespace mindloft {
namespace {

/// Name, full name, description.
constexpr int kFields = 3;

}  // namespace

ListedUsers::ListedUsers(std::vector<ExplorerRow> rows, Start start)
    : start_(start), sorted_(start == Start::Sorted) {
  entries_.reserve(rows.size());
  for (auto& row : rows) {
    Entry entry{std::move(row), {}, {}, {}};
    const wxString separator{wxUniChar(kFieldSeparator)};
    for (const wxString& field : wxStringTokenize(entry.row.fields, separator, wxTOKEN_RET_EMPTY_ALL))
      entry.texts.push_back(ToUtf8(field));
    entry.texts.resize(kFields);
    entries_.push_back(std::move(entry));
  }
  Show();
}

void ListedUsers::Prepare() {
  const NameRules rules = NameRules::OfSession();
  const bool others = !keyed_ || rules != rules_;
  if (!others && keyed_ == column_) return;
  rules_ = rules;
  for (auto& entry : entries_) {
    if (others) {
      entry.folded.clear();
      for (const auto& text : entry.texts) entry.folded.push_back(rules_.Folded(text));
    }
    entry.key = rules_.SortKey(entry.texts[column_]);
  }
  keyed_ = column_;
}

void ListedUsers::Show() {
  Prepare();
  const std::string sought = rules_.Folded(filter_);
  shown_.clear();
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const auto& folded = entries_[i].folded;
    if (std::any_of(folded.begin(), folded.end(),
                    [&](const auto& field) { return field.find(sought) != std::string::npos; }))
      shown_.push_back(i);
  }
  if (sorted_)
    std::stable_sort(shown_.begin(), shown_.end(), [this](std::size_t a, std::size_t b) {
      if (descending_) std::swap(a, b);
      return entries_[a].key < entries_[b].key;
    });
  positions_.clear();
  for (std::size_t i = 0; i < shown_.size(); ++i) positions_[entries_[shown_[i]].row.key] = i;
}

std::vector<ExplorerRow> ListedUsers::Page(std::int64_t first, std::int64_t count) {
  const auto begin = std::clamp<std::int64_t>(first, 0, Count());
  const auto end = begin + std::clamp<std::int64_t>(count, 0, Count() - begin);
  std::vector<ExplorerRow> page;
  for (auto i = begin; i < end; ++i) page.push_back(entries_[shown_[static_cast<std::size_t>(i)]].row);
  return page;
}

bool ListedUsers::CanSort(int column) const {
  return column >= 0 && column < kFields;
}

void ListedUsers::Sort(int column, bool descending) {
  if (!CanSort(column)) return;
  column_ = static_cast<std::size_t>(column);
  descending_ = descending;
  sorted_ = true;
  Show();
}

void ListedUsers::Filter(const wxString& text) {
  filter_ = ToUtf8(text);
  Show();
}

std::int64_t ListedUsers::FindPrefix(const wxString& prefix, std::int64_t from) {
  const std::string sought = rules_.PrefixKey(ToUtf8(prefix));
  const auto starts = [&](std::size_t entry) { return entries_[entry].key.starts_with(sought); };
  const auto begin = shown_.begin() + std::clamp<std::int64_t>(from, 0, Count());
  auto found = std::find_if(begin, shown_.end(), starts);
  if (found == shown_.end()) {
    found = std::find_if(shown_.begin(), begin, starts);
    if (found == begin) return -1;
  }
  return found - shown_.begin();
}

std::int64_t ListedUsers::PositionOf(const wxString& key) {
  const auto found = positions_.find(key);
  return found == positions_.end() ? -1 : static_cast<std::int64_t>(found->second);
}

}  // namespace mindloft
