#pragma once

#include <wx/panel.h>

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include "controls/explorer/ExplorerColumn.h"
#include "controls/explorer/ExplorerListInput.h"
#include "controls/explorer/ExplorerListState.h"
#include "controls/explorer/ExplorerRows.h"

class wxSearchCtrl;

namespace mindloft {

class ExplorerList;

/// The right side of an explorer: the search box above the list, and what happens to the rows: shown, sorted,
/// filtered, read anew.
class ExplorerListPane : public wxPanel {
 public:
  explicit ExplorerListPane(wxWindow* parent);
  ~ExplorerListPane() override;

  ExplorerList& List() const { return *list_; }
  ExplorerListInput& Input() const { return *input_; }
  /// Named "search".
  wxSearchCtrl& Search() const { return *search_; }

  void ClearRows();
  void AddColumn(const ExplorerColumn& column);
  void SetColumnWidth(int column, int width);
  const std::vector<ExplorerColumn>& Columns() const { return columns_; }
  void SetRows(std::shared_ptr<ExplorerRows> rows);
  void RefreshRows();
  std::int64_t TotalCount() const { return totalCount_; }
  /// Straight from the source: a command must not go on with half of the selection, so its failures are
  /// thrown.
  std::vector<ExplorerRow> SelectedRows() const;
  std::vector<wxString> SelectedKeys() const;
  ExplorerRow Row(std::int64_t row) const;

  void SortBy(int column, bool descending);
  int SortColumn() const { return sortColumn_; }
  bool SortDescending() const { return sortDescending_; }
  void FilterBy(const wxString& text);
  const wxString& FilterText() const { return filter_; }
  ExplorerListState State() const;
  void RestoreState(const ExplorerListState& state);

  std::function<void()> countChanged;

 private:
  void ShowColumns();
  void ShowSortColumn();
  void ShowSearchText(const wxString& text);
  void OnHeading(int column);
  void ShowFailure(std::exception_ptr failure);
  std::vector<ExplorerRow> KeyedRows() const;

  wxSearchCtrl* search_ = nullptr;
  ExplorerList* list_ = nullptr;
  std::unique_ptr<ExplorerListInput> input_;
  std::vector<ExplorerColumn> columns_;
  bool columnsPending_ = false;
  std::int64_t totalCount_ = 0;
  int sortColumn_ = -1;
  bool sortDescending_ = false;
  wxString filter_;
};

}  // namespace mindloft
