#include "controls/explorer/GuardedRows.h"

#include <algorithm>
#include <utility>

namespace mindloft {

template <typename Result, typename Question>
Result GuardedRows::Ask(Result otherwise, Question question) const {
  if (!source_ || failed_) return otherwise;
  try {
    return question(*source_);
  } catch (...) {
    failed_ = true;
    if (onFailure) onFailure(std::current_exception());
    return otherwise;
  }
}

void GuardedRows::SetSource(std::shared_ptr<ExplorerRows> source) {
  source_ = std::move(source);
  failed_ = false;
  count_ = totalCount_ = 0;
}

std::int64_t GuardedRows::Count() {
  count_ = Ask(count_, [](ExplorerRows& rows) { return std::max<std::int64_t>(rows.Count(), 0); });
  return count_;
}

std::int64_t GuardedRows::TotalCount() {
  totalCount_ =
      Ask(totalCount_, [](ExplorerRows& rows) { return std::max<std::int64_t>(rows.TotalCount(), 0); });
  return totalCount_;
}

std::vector<ExplorerRow> GuardedRows::Page(std::int64_t first, std::int64_t count) {
  return Ask(std::vector<ExplorerRow>(), [&](ExplorerRows& rows) { return rows.Page(first, count); });
}

bool GuardedRows::CanSort(int column) const {
  return Ask(false, [&](ExplorerRows& rows) { return rows.CanSort(column); });
}

void GuardedRows::Sort(int column, bool descending) {
  Ask(false, [&](ExplorerRows& rows) {
    rows.Sort(column, descending);
    return true;
  });
}

bool GuardedRows::CanFilter() const {
  return Ask(false, [](ExplorerRows& rows) { return rows.CanFilter(); });
}

void GuardedRows::Filter(const wxString& text) {
  Ask(false, [&](ExplorerRows& rows) {
    rows.Filter(text);
    return true;
  });
}

std::int64_t GuardedRows::FindPrefix(const wxString& prefix, std::int64_t from) {
  return Ask(std::int64_t{-1}, [&](ExplorerRows& rows) { return rows.FindPrefix(prefix, from); });
}

std::int64_t GuardedRows::PositionOf(const wxString& key) {
  return Ask(std::int64_t{-1}, [&](ExplorerRows& rows) { return rows.PositionOf(key); });
}

std::vector<std::int64_t> GuardedRows::PositionsOf(const std::vector<wxString>& keys) {
  return Ask(std::vector<std::int64_t>(keys.size(), -1),
             [&](ExplorerRows& rows) { return rows.PositionsOf(keys); });
}

}  // namespace mindloft
