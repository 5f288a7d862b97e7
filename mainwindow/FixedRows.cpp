#include "mainwindow/FixedRows.h"

#include <algorithm>

namespace mindloft {

FixedRows::FixedRows(std::vector<ExplorerRow> rows) : rows_(std::move(rows)), shown_(rows_) {}

std::vector<ExplorerRow> FixedRows::Page(std::int64_t first, std::int64_t count) {
  const auto size = Count();
  const auto begin = std::clamp<std::int64_t>(first, 0, size);
  const auto end = begin + std::clamp<std::int64_t>(count, 0, size - begin);
  return {shown_.begin() + begin, shown_.begin() + end};
}

void FixedRows::Sort(int, bool descending) {
  for (auto* rows : {&rows_, &shown_})
    std::stable_sort(rows->begin(), rows->end(), [descending](const ExplorerRow& a, const ExplorerRow& b) {
      const int order = a.fields.CmpNoCase(b.fields);
      return descending ? order > 0 : order < 0;
    });
}

void FixedRows::Filter(const wxString& text) {
  shown_.clear();
  const wxString sought = text.Lower();
  std::copy_if(rows_.begin(), rows_.end(), std::back_inserter(shown_),
               [&](const ExplorerRow& row) { return row.fields.Lower().find(sought) != wxString::npos; });
}

std::int64_t FixedRows::FindPrefix(const wxString& prefix, std::int64_t from) {
  const auto size = Count();
  const wxString sought = prefix.Lower();
  for (std::int64_t step = 0; step < size; ++step) {
    const auto position = (std::clamp<std::int64_t>(from, 0, size) + step) % size;
    if (shown_[static_cast<std::size_t>(position)].fields.Lower().StartsWith(sought)) return position;
  }
  return -1;
}

std::int64_t FixedRows::PositionOf(const wxString& key) {
  const auto found =
      std::find_if(shown_.begin(), shown_.end(), [&](const auto& row) { return row.key == key; });
  return found == shown_.end() ? -1 : found - shown_.begin();
}

}  // namespace mindloft
