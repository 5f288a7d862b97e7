#include "controls/explorer/SelectionKeys.h"

#include <algorithm>

namespace mindloft {

void SelectionKeys::Update(const SelectionModel& selection, RowCache& cache, ExplorerRows& rows) {
  const std::int64_t selected = selection.Selected().Count();
  const std::int64_t others = selection.RowCount() - selected;
  anything_ = selected > 0;
  everything_ = selection.AllSelected();
  complement_ = !everything_ && selected > kLimit && others <= kLimit;
  overflow_ = !complement_ && selected > kLimit;
  if (overflow_)
    keys_.clear();
  else
    Track(complement_ ? selection.Selected().Complement(selection.RowCount()) : selection.Selected(), cache,
          rows);

  // A source that fails, or rows that have vanished, leave gaps.
  complete_ = !overflow_ && !complement_ && static_cast<std::int64_t>(keys_.size()) == selected;

  focus_ = selection.Focus();
  const ExplorerRow* focused = cache.Find(focus_);
  focusKey_ = focused ? focused->key : wxString();
}

void SelectionKeys::Track(const RowRanges& tracked, RowCache& cache, ExplorerRows& rows) {
  std::vector<KeyedRow> known;
  known.swap(keys_);
  keys_.reserve(static_cast<std::size_t>(tracked.Count()));
  auto old = known.begin();
  for (const RowRange& range : tracked.Ranges()) {
    for (std::int64_t row = range.first; row <= range.last; ++row) {
      while (old != known.end() && old->first < row) ++old;
      if (old != known.end() && old->first == row) {
        keys_.emplace_back(row, std::move(old->second));
        continue;
      }
      if (const ExplorerRow* cached = cache.Peek(row)) {
        keys_.emplace_back(row, cached->key);
        continue;
      }
      // One question up to the next row that is known, not one per row.
      const std::int64_t end = old == known.end() ? range.last : std::min(range.last, old->first - 1);
      const std::vector<ExplorerRow> page = rows.Page(row, end - row + 1);
      for (std::size_t i = 0; i < page.size() && row + static_cast<std::int64_t>(i) <= end; ++i)
        keys_.emplace_back(row + static_cast<std::int64_t>(i), page[i].key);
      row = end;
    }
  }
}

bool SelectionKeys::Restore(SelectionModel& selection, ExplorerRows& rows, std::int64_t count,
                            Change change) {
  // Rows that have come meanwhile are not part of what was chosen before they were there.
  const bool contents = change == Change::Contents;
  const bool grown = contents && count > selection.RowCount();
  const bool sameRows = (change == Change::Order || contents) && !grown;
  const bool allStay = everything_ && change != Change::Widening && !grown && !(contents && complete_);
  std::int64_t focus = focusKey_.empty() ? -1 : rows.PositionOf(focusKey_);
  if (focus < 0 && focus_ >= 0 && contents) focus = std::min(focus_, count - 1);

  // The places that are known belong to the list as it was.
  std::vector<KeyedRow> known;
  known.swap(keys_);
  const std::size_t sought = known.size();
  RowRanges next;
  if (!allStay && !overflow_ && (!complement_ || sameRows)) {
    std::vector<wxString> keys;
    keys.reserve(sought);
    for (KeyedRow& keyed : known) keys.push_back(std::move(keyed.second));
    std::vector<std::int64_t> positions = rows.PositionsOf(keys);
    for (std::size_t i = 0; i < sought; ++i)
      if (positions[i] >= 0) keys_.emplace_back(positions[i], std::move(keys[i]));
    std::erase_if(positions, [](std::int64_t position) { return position < 0; });
    std::sort(keys_.begin(), keys_.end());
    next = RowRanges::FromRows(std::move(positions));
  }
  if (allStay || (complement_ && sameRows)) next = next.Complement(count);

  const std::int64_t before = selection.Selected().Count();
  selection.Reset(count);
  selection.Assign(std::move(next), focus);
  // The same rows at other places are the same selection.
  const bool allFound = Complete() && keys_.size() == sought;
  return !(allFound || (allStay && before == count) || !anything_);
}

}  // namespace mindloft
