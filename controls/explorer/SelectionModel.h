#pragma once

#include "controls/explorer/RowRanges.h"

namespace mindloft {

/// Which rows of a list are selected, which one has the focus, and from which one a range extends.
///
/// The model, not the native control, decides: the control is told about the visible rows only, because
/// telling it about a million takes minutes on some desktops. Every change answers whether the set of
/// selected rows became another one.
class SelectionModel {
 public:
  /// Another list of so many rows: nothing is selected or focused.
  void Reset(std::int64_t rows);
  std::int64_t RowCount() const { return rows_; }

  /// -1: none.
  std::int64_t Focus() const { return focus_; }
  const RowRanges& Selected() const { return selected_; }
  bool IsSelected(std::int64_t row) const { return selected_.Contains(row); }
  bool AllSelected() const { return rows_ > 0 && selected_.Count() == rows_; }

  bool SelectOnly(std::int64_t row);
  bool Toggle(std::int64_t row);
  /// Selects from the anchor to the row; what else was selected stays only when `keepOthers`.
  bool ExtendTo(std::int64_t row, bool keepOthers);
  /// Moves the focus and leaves the selection alone; -1: no focus.
  void MoveFocus(std::int64_t row);
  bool SelectAll();
  /// One row's state, when something outside changed it (assistive tools act on the native control).
  bool Set(std::int64_t row, bool selected);
  /// Takes the whole state over; rows and focus outside the list are dropped.
  bool Assign(RowRanges selected, std::int64_t focus);

 private:
  bool IsRow(std::int64_t row) const { return row >= 0 && row < rows_; }
  bool Replace(RowRanges selected);

  RowRanges selected_;
  std::int64_t rows_ = 0;
  std::int64_t focus_ = -1;
  std::int64_t anchor_ = -1;
};

}  // namespace mindloft
