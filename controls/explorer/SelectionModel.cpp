#include "controls/explorer/SelectionModel.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace mindloft {

void SelectionModel::Reset(std::int64_t rows) {
  selected_.Clear();
  rows_ = rows;
  focus_ = anchor_ = -1;
}

bool SelectionModel::Replace(RowRanges selected) {
  const bool changed = selected != selected_;
  selected_ = std::move(selected);
  return changed;
}

bool SelectionModel::SelectOnly(std::int64_t row) {
  if (!IsRow(row)) return false;
  focus_ = anchor_ = row;
  RowRanges only;
  only.Add({row, row});
  return Replace(std::move(only));
}

bool SelectionModel::Toggle(std::int64_t row) {
  if (!IsRow(row)) return false;
  focus_ = anchor_ = row;
  return Set(row, !IsSelected(row));
}

bool SelectionModel::ExtendTo(std::int64_t row, bool keepOthers) {
  if (!IsRow(row)) return false;
  if (anchor_ < 0) anchor_ = focus_ < 0 ? 0 : focus_;
  focus_ = row;
  RowRanges next;
  if (keepOthers) next = selected_;
  next.Add({std::min(anchor_, row), std::max(anchor_, row)});
  return Replace(std::move(next));
}

void SelectionModel::MoveFocus(std::int64_t row) {
  focus_ = IsRow(row) ? row : -1;
  anchor_ = focus_;
}

bool SelectionModel::SelectAll() {
  RowRanges all;
  all.Add({0, rows_ - 1});
  return Replace(std::move(all));
}

bool SelectionModel::Set(std::int64_t row, bool selected) {
  if (!IsRow(row) || IsSelected(row) == selected) return false;
  if (selected)
    selected_.Add({row, row});
  else
    selected_.Remove({row, row});
  return true;
}

bool SelectionModel::Assign(RowRanges selected, std::int64_t focus) {
  selected.Remove({rows_, std::numeric_limits<std::int64_t>::max() - 1});
  MoveFocus(focus);
  return Replace(std::move(selected));
}

}  // namespace mindloft
