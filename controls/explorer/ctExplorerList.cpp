// The list of ctExplorer.
#include <wx/settings.h>

#include "controls/explorer/ctExplorerImpl.h"
#include "core/ErrorHandling.h"

namespace mindloft {

void ctExplorer::ClearList() {
  impl_->pane->ClearRows();
}

void ctExplorer::AddColumn(const ExplorerColumn& column) {
  impl_->pane->AddColumn(column);
}

void ctExplorer::SetColumnWidth(int column, int width) {
  impl_->pane->SetColumnWidth(column, width);
}

const std::vector<ExplorerColumn>& ctExplorer::Columns() const {
  return impl_->pane->Columns();
}

void ctExplorer::SetRows(std::shared_ptr<ExplorerRows> rows) {
  impl_->pane->SetRows(std::move(rows));
}

void ctExplorer::RefreshList() {
  impl_->pane->RefreshRows();
}

std::int64_t ctExplorer::ListCount() const {
  return impl_->List().Selection().RowCount();
}

std::int64_t ctExplorer::ListTotalCount() const {
  return impl_->pane->TotalCount();
}

std::int64_t ctExplorer::FocusedListRow() const {
  return impl_->List().Selection().Focus();
}

std::int64_t ctExplorer::SelectedListCount() const {
  return impl_->List().Selection().Selected().Count();
}

std::vector<ExplorerRow> ctExplorer::SelectedListRows() const try {
  return impl_->pane->SelectedRows();
} catch (...) {
  mindloft::Raise("ctExplorer", "SelectedListRows");
}

std::vector<wxString> ctExplorer::SelectedListKeys() const try {
  return impl_->pane->SelectedKeys();
} catch (...) {
  mindloft::Raise("ctExplorer", "SelectedListKeys");
}

ExplorerRow ctExplorer::ListRow(std::int64_t row) const try { return impl_->pane->Row(row); } catch (...) {
  mindloft::Raise("ctExplorer", "ListRow");
}

void ctExplorer::SelectListRow(std::int64_t row) {
  impl_->List().ChangeSelection([&](SelectionModel& selection) { return selection.SelectOnly(row); });
}

void ctExplorer::SelectListRows(const std::vector<std::int64_t>& rows) {
  impl_->List().ChangeSelection([&](SelectionModel& selection) {
    return selection.Assign(RowRanges::FromRows(rows), rows.empty() ? -1 : rows.front());
  });
}

void ctExplorer::SelectAllListRows() {
  impl_->List().ChangeSelection([](SelectionModel& selection) { return selection.SelectAll(); });
}

void ctExplorer::SortBy(int column, bool descending) {
  impl_->pane->SortBy(column, descending);
}

int ctExplorer::SortColumn() const {
  return impl_->pane->SortColumn();
}

bool ctExplorer::SortDescending() const {
  return impl_->pane->SortDescending();
}

void ctExplorer::SetFilter(const wxString& text) {
  impl_->pane->FilterBy(text);
}

wxString ctExplorer::Filter() const {
  return impl_->pane->FilterText();
}

ExplorerListState ctExplorer::ListState() const {
  return impl_->pane->State();
}

void ctExplorer::RestoreList(const ExplorerListState& state) {
  impl_->pane->RestoreState(state);
}

void ctExplorer::SetCheckBoxes(std::function<bool(const ExplorerRow& row)> isChecked) {
  impl_->List().SetChecks(std::move(isChecked));
}

void ctExplorer::SetLocked(bool locked) {
  if (impl_->locked == locked) return;
  impl_->locked = locked;
  impl_->List().SetBackgroundColour(
      wxSystemSettings::GetColour(locked ? wxSYS_COLOUR_BTNFACE : wxSYS_COLOUR_LISTBOX));
  RefreshChecks();
}

bool ctExplorer::Locked() const {
  return impl_->locked;
}

void ctExplorer::ClickCheck(std::int64_t row) {
  if (impl_->locked || !impl_->List().HasChecks() || row < 0 || row >= ListCount() || !lvCheckClick) return;
  Guarded("ctExplorer", "lvCheckClick", [&] {
    const ExplorerRow clicked = ListRow(row);
    lvCheckClick(clicked);
    RefreshChecks();
  });
}

void ctExplorer::RefreshChecks() {
  impl_->List().Refresh();
}

}  // namespace mindloft
