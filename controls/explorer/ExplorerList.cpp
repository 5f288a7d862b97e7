#include "controls/explorer/ExplorerList.h"

#include <wx/renderer.h>
#include <wx/wupdlock.h>

#include <algorithm>
#include <utility>

#include "controls/explorer/RowText.h"
#include "core/ErrorHandling.h"

namespace mindloft {

namespace {

/// On either side of a check box in lists that the toolkit draws, in pixels.
constexpr int kCheckBoxMargin = 5;

/// Where the toolkit draws the list itself, the list holds a window for the headings and one for the rows.
wxWindow* FindRowsWindow(wxListCtrl* list) {
  for (wxWindow* child : list->GetChildren())
    if (child->GetName() != "wxlistctrlcolumntitles") return child;
  return list;
}

}  // namespace

ExplorerList::ExplorerList(wxWindow* parent)
    : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxLC_REPORT | wxLC_VIRTUAL,
                 wxDefaultValidator, "list") {
  rowsWindow_ = FindRowsWindow(this);
  // Rows that scroll into view are told their state just before they are drawn.
  rowsWindow_->Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
    Guarded("ctExplorer", "ShowSelection", [this] { ShowSelection(); });
    event.Skip();
  });
  Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent& event) { OnNativeSelection(event, true); });
  Bind(wxEVT_LIST_ITEM_DESELECTED, [this](wxListEvent& event) { OnNativeSelection(event, false); });
}

void ExplorerList::ShowColumns(const std::vector<ExplorerColumn>& columns) {
  if (columns == columns_) return;
  const wxWindowUpdateLocker locker(this);
  while (columns_.size() > columns.size()) {
    columns_.pop_back();
    DeleteColumn(static_cast<int>(columns_.size()));
  }
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const int index = static_cast<int>(i);
    if (i == columns_.size()) {
      InsertColumn(index, columns[i].caption, wxLIST_FORMAT_LEFT, FromDIP(columns[i].width));
      columns_.push_back(columns[i]);
      continue;
    }
    if (columns_[i].caption != columns[i].caption) {
      wxListItem heading;
      heading.SetText(columns[i].caption);
      SetColumn(index, heading);
    }
    if (columns_[i].width != columns[i].width) SetColumnWidth(index, FromDIP(columns[i].width));
    columns_[i] = columns[i];
  }
}

void ExplorerList::SetNativeCount(std::int64_t count) {
  showing_ = true;
  if (nativeFocus_ >= count) {
    // The toolkit's own list does not let go of a focused row beyond the new end.
    if (nativeFocus_ < GetItemCount()) SetItemState(nativeFocus_, 0, wxLIST_STATE_FOCUSED);
    nativeFocus_ = -1;
  }
  if (count != GetItemCount()) SetItemCount(static_cast<long>(count));
  showing_ = false;
}

void ExplorerList::StartRows(std::int64_t count) {
  cache_.Clear();
  selection_.Reset(count);
  keys_ = {};
  SetNativeCount(count);
  if (count > 0) EnsureVisible(0);
  ShowSelection();
  Refresh();
}

void ExplorerList::RestoreRows(std::int64_t count, SelectionKeys::Change change) {
  const std::int64_t oldTop = TopRow();
  const ExplorerRow* topRow = cache_.Peek(oldTop);
  const wxString topKey = topRow ? topRow->key : wxString();
  cache_.Clear();
  const bool changed = keys_.Restore(selection_, rows_, count, change);
  SetNativeCount(count);
  if (change == SelectionKeys::Change::Contents) {
    const std::int64_t top = topKey.empty() ? -1 : rows_.PositionOf(topKey);
    ScrollToTop(top >= 0 ? top : std::min(oldTop, count - 1));
  } else if (selection_.Focus() >= 0) {
    EnsureVisible(static_cast<long>(selection_.Focus()));
  } else if (count > 0) {
    EnsureVisible(0);
  }
  keys_.Update(selection_, cache_, rows_);
  ShowSelection();
  Refresh();
  if (changed && selectionChanged) selectionChanged();
}

void ExplorerList::RestoreSelection(const SelectionKeys& keys, const ListPlace& place) {
  keys_ = keys;
  RestoreRows(selection_.RowCount(), SelectionKeys::Change::Contents);
  const std::int64_t row = place.key.empty() ? -1 : rows_.PositionOf(place.key);
  if (row >= 0)
    ScrollToTop(row - place.below);
  else if (selection_.Focus() >= 0)
    EnsureVisible(static_cast<long>(selection_.Focus()));
}

ListPlace ExplorerList::Place() const {
  const std::int64_t top = TopRow(), focus = selection_.Focus();
  const bool isFocusShown = focus >= top && focus < top + RowsPerPage();
  const std::int64_t row = isFocusShown ? focus : top;
  const ExplorerRow* shown = cache_.Peek(row);
  return shown ? ListPlace{shown->key, row - top} : ListPlace();
}

void ExplorerList::ChangeSelection(const std::function<bool(SelectionModel&)>& action) {
  const std::int64_t focus = selection_.Focus();
  const bool changed = action(selection_);
  if (selection_.Focus() >= 0 && selection_.Focus() != focus)
    EnsureVisible(static_cast<long>(selection_.Focus()));
  keys_.Update(selection_, cache_, rows_);
  ShowSelection();
  if (changed && selectionChanged) selectionChanged();
}

void ExplorerList::ShowSelection() {
  if (showing_ || GetItemCount() == 0) return;
  showing_ = true;
  const long first = std::max(GetTopItem(), 0L);
  // One more than fits: the last one may be half visible.
  const long end = std::min<long>(first + GetCountPerPage() + 2, GetItemCount());
  for (long item = first; item < end; ++item) {
    const bool selected = selection_.IsSelected(item);
    if (selected != (GetItemState(item, wxLIST_STATE_SELECTED) != 0))
      SetItemState(item, selected ? wxLIST_STATE_SELECTED : 0, wxLIST_STATE_SELECTED);
  }
  const long focus = static_cast<long>(selection_.Focus());
  if (focus != nativeFocus_) {
    if (focus >= 0)
      SetItemState(focus, wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
    else if (nativeFocus_ < GetItemCount())
      SetItemState(nativeFocus_, 0, wxLIST_STATE_FOCUSED);
    nativeFocus_ = focus;
  }
  showing_ = false;
}

void ExplorerList::OnNativeSelection(wxListEvent& event, bool selected) {
  // What is shown here comes back as an event; what assistive tools do comes unasked and counts.
  if (showing_) return;
  Guarded("ctExplorer", "OnNativeSelection", [&] {
    const long row = event.GetIndex();
    ChangeSelection([&](SelectionModel& selection) {
      if (row < 0) return selected ? selection.SelectAll() : selection.Assign({}, selection.Focus());
      if (selected) selection.MoveFocus(row);
      return selection.Set(row, selected);
    });
  });
}

void ExplorerList::ScrollToTop(std::int64_t row) {
  row = std::clamp<std::int64_t>(row, 0, std::max<std::int64_t>(GetItemCount() - 1, 0));
  if (GetItemCount() == 0 || row == TopRow()) return;
  wxRect rect;
  if (!GetItemRect(static_cast<long>(TopRow()), rect)) return;
  ScrollList(0, static_cast<int>(row - TopRow()) * rect.height);
}

wxPoint ExplorerList::InRows(wxWindow* window, const wxPoint& point) const {
  return window == rowsWindow_ ? point : rowsWindow_->ScreenToClient(window->ClientToScreen(point));
}

void ExplorerList::SetChecks(std::function<bool(const ExplorerRow&)> isChecked) {
  isChecked_ = std::move(isChecked);
  if (!HasCheckBoxes()) {
    // A list that holds rows already may set the boxes of all of them, one by one.
    const std::int64_t count = GetItemCount();
    SetNativeCount(0);
    EnableCheckBoxes();
    SetNativeCount(count);
  }
  Refresh();
}

bool ExplorerList::IsOnCheckBox(std::int64_t row, wxWindow* window, const wxPoint& point) const {
  if (!HasChecks()) return false;
  const long item = static_cast<long>(row);
  const int x = InRows(window, point).x;
  wxRect whole;
  if (!GetItemRect(item, whole)) return false;
  if (IsDrawnByToolkit()) {
    const wxSize box = wxRendererNative::Get().GetCheckBoxSize(rowsWindow_);
    return x >= whole.x && x < whole.x + box.x + 2 * kCheckBoxMargin;
  }
  wxRect image;
  return GetItemRect(item, image, wxLIST_RECT_ICON) && x >= whole.x && x < image.x;
}

std::int64_t ExplorerList::RowAt(wxWindow* window, const wxPoint& point) const {
  int flags = 0;
  const long row = HitTest(InRows(window, point), flags);
  return flags & wxLIST_HITTEST_ONITEM ? row : -1;
}

wxString ExplorerList::OnGetItemText(long item, long column) const {
  const ExplorerRow* row = cache_.Find(item);
  return row ? RowText(*row, breakCharacter_, static_cast<int>(column)) : wxString();
}

bool ExplorerList::OnGetItemIsChecked(long item) const {
  const ExplorerRow* row = HasChecks() ? cache_.Find(item) : nullptr;
  return row && isChecked_(*row);
}

int ExplorerList::OnGetItemImage(long item) const {
  const ExplorerRow* row = cache_.Find(item);
  return row ? row->image : -1;
}

}  // namespace mindloft
