#pragma once

#include <wx/listctrl.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <vector>

#include "controls/explorer/ExplorerColumn.h"
#include "controls/explorer/ExplorerListState.h"
#include "controls/explorer/GuardedRows.h"
#include "controls/explorer/RowCache.h"
#include "controls/explorer/SelectionKeys.h"
#include "controls/explorer/SelectionModel.h"

namespace mindloft {

/// The virtual list of an explorer. It draws rows of its cache and shows the state of its selection model; it
/// decides nothing itself: keys and clicks go through ExplorerListInput.
class ExplorerList : public wxListCtrl {
 public:
  /// Named "list".
  explicit ExplorerList(wxWindow* parent);

  GuardedRows& Rows() { return rows_; }
  RowCache& Cache() { return cache_; }
  const SelectionModel& Selection() const { return selection_; }
  const SelectionKeys& Keys() const { return keys_; }

  void SetBreakCharacter(wxUniChar character) { breakCharacter_ = character; }
  wxUniChar BreakCharacter() const { return breakCharacter_; }
  /// The columns that are there already are kept and only get another caption or width where these differ.
  void ShowColumns(const std::vector<ExplorerColumn>& columns);

  /// Another list of so many rows, nothing selected, shown from its beginning.
  void StartRows(std::int64_t count);
  /// The rows have changed: their number, their order, or what they hold. Selection and focus stay with their
  /// rows; `selectionChanged` is called when the selected set became another one.
  void RestoreRows(std::int64_t count, SelectionKeys::Change change);
  /// Selects and focuses the rows of those keys. The list is scrolled to the place, as far as its row is
  /// still there, else to the focused row.
  void RestoreSelection(const SelectionKeys& keys, const ListPlace& place);
  /// Changes the selection or focus by `action` (which answers whether the selected set changed), shows it,
  /// and scrolls the focused row into view.
  void ChangeSelection(const std::function<bool(SelectionModel&)>& action);

  /// Gives every row a check box in front of it, whose state the source tells when it is drawn; nothing takes
  /// the boxes away. They are only shown here: clicks and the space bar go through ExplorerListInput.
  void SetChecks(std::function<bool(const ExplorerRow&)> isChecked);
  bool HasChecks() const { return static_cast<bool>(isChecked_); }
  /// Whether a point of `window` lies on the row's check box or beside it, before the row's text and image.
  bool IsOnCheckBox(std::int64_t row, wxWindow* window, const wxPoint& point) const;

  std::int64_t TopRow() const { return GetTopItem(); }
  /// Told by the focused row where that is on the screen, else by the topmost.
  ListPlace Place() const;
  /// Scrolls so that the row is the topmost, as far as the end of the list allows.
  void ScrollToTop(std::int64_t row);
  /// Rows that fit between the heading and the lower edge.
  std::int64_t RowsPerPage() const { return std::max(GetCountPerPage(), 1); }
  /// The row at a point of `window` (the list or a window in it); -1: none.
  std::int64_t RowAt(wxWindow* window, const wxPoint& point) const;
  /// The window that draws the rows: the list itself, or a window in it where the toolkit draws the list.
  wxWindow* RowsWindow() const { return rowsWindow_; }

  /// The selected set became another one, by user or program.
  std::function<void()> selectionChanged;

 protected:
  wxString OnGetItemText(long item, long column) const override;
  int OnGetItemImage(long item) const override;
  bool OnGetItemIsChecked(long item) const override;

 private:
  bool IsDrawnByToolkit() const { return rowsWindow_ != this; }
  /// A point of `window` in the window of the rows.
  wxPoint InRows(wxWindow* window, const wxPoint& point) const;
  void OnNativeSelection(wxListEvent& event, bool selected);
  /// Tells the native control the state of the rows that are on the screen.
  void ShowSelection();
  void SetNativeCount(std::int64_t count);

  GuardedRows rows_;
  mutable RowCache cache_{rows_};
  SelectionModel selection_;
  SelectionKeys keys_;
  std::function<bool(const ExplorerRow&)> isChecked_;
  wxUniChar breakCharacter_ = '\t';
  std::vector<ExplorerColumn> columns_;
  wxWindow* rowsWindow_ = nullptr;
  long nativeFocus_ = -1;
  bool showing_ = false;
};

}  // namespace mindloft
