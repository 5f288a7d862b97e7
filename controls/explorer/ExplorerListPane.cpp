#include "controls/explorer/ExplorerListPane.h"

#include <wx/sizer.h>
#include <wx/srchctrl.h>
#include <wx/textctrl.h>

#include "controls/explorer/ExplorerList.h"
#include "core/ErrorHandling.h"
#include "core/forms/Images.h"
#include "platform/ui/SearchPicture.h"

namespace mindloft {

namespace {

/// Rows that a command reads at a time.
constexpr std::int64_t kReadRows = 1024;
/// Around the search box, in pixels at 96 dpi.
constexpr int kGap = 3;

}  // namespace

ExplorerListPane::ExplorerListPane(wxWindow* parent) : wxPanel(parent) {
  search_ = new wxSearchCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, 0,
                             wxDefaultValidator, "search");
  // Where the toolkit makes the box of parts, a mirrored part loses its picture.
  for (wxWindow* part : search_->GetChildren())
    if (!dynamic_cast<wxTextEntry*>(part)) part->SetLayoutDirection(wxLayout_LeftToRight);
  platform::SetSearchPicture(*search_, LoadImage("find"));
  list_ = new ExplorerList(this);
  input_ = std::make_unique<ExplorerListInput>(*list_);
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(search_, 0, wxEXPAND | wxALL, FromDIP(kGap));
  sizer->Add(list_, 1, wxEXPAND);
  SetSizer(sizer);
  search_->Disable();

  list_->Rows().onFailure = [this](std::exception_ptr failure) { ShowFailure(failure); };
  list_->Bind(wxEVT_LIST_COL_CLICK, [this](wxListEvent& event) {
    Guarded("ctExplorer", "Heading", [&] { OnHeading(event.GetColumn()); });
  });
  search_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) {
    Guarded("ctExplorer", "Filter", [this] { FilterBy(search_->GetValue()); });
  });
  search_->Bind(wxEVT_SEARCH_CANCEL, [this](wxCommandEvent&) {
    Guarded("ctExplorer", "Filter", [this] { FilterBy(wxString()); });
  });
}

ExplorerListPane::~ExplorerListPane() = default;

void ExplorerListPane::ShowFailure(std::exception_ptr failure) {
  // A box must not open while the list is being painted.
  CallAfter([failure] {
    try {
      std::rethrow_exception(failure);
    } catch (...) {
      ShowError("ctExplorer", "ReadRows");
    }
  });
}

void ExplorerListPane::ClearRows() {
  columns_.clear();
  totalCount_ = 0;
  sortColumn_ = -1;
  sortDescending_ = false;
  filter_.clear();
  ShowSearchText(wxString());
  search_->Disable();
  input_->Reset();
  list_->Rows().SetSource(nullptr);
  list_->StartRows(0);
  ShowSortColumn();
  // The next rows mostly come at once and with the same columns: then nothing changes on the screen.
  if (!columnsPending_) {
    columnsPending_ = true;
    CallAfter([this] { Guarded("ctExplorer", "ShowColumns", [this] { ShowColumns(); }); });
  }
}

void ExplorerListPane::AddColumn(const ExplorerColumn& column) {
  columns_.push_back(column);
  if (!columnsPending_) ShowColumns();
}

void ExplorerListPane::SetColumnWidth(int column, int width) {
  if (column < 0 || column >= static_cast<int>(columns_.size())) return;
  columns_[static_cast<std::size_t>(column)].width = width;
  if (!columnsPending_) ShowColumns();
}

void ExplorerListPane::ShowColumns() {
  columnsPending_ = false;
  list_->ShowColumns(columns_);
}

void ExplorerListPane::ShowSortColumn() {
  if (sortColumn_ >= 0)
    list_->ShowSortIndicator(sortColumn_, !sortDescending_);
  else
    list_->RemoveSortIndicator();
}

void ExplorerListPane::SetRows(std::shared_ptr<ExplorerRows> rows) {
  ShowColumns();
  GuardedRows& source = list_->Rows();
  source.SetSource(std::move(rows));
  input_->Reset();
  filter_.clear();
  ShowSearchText(wxString());
  const bool canFilter = source.CanFilter();
  search_->Enable(canFilter);
  if (canFilter) source.Filter(wxString());
  sortDescending_ = false;
  sortColumn_ = -1;
  for (int column = 0; source.StartsSorted() && sortColumn_ < 0 && column < static_cast<int>(columns_.size());
       ++column)
    if (source.CanSort(column)) sortColumn_ = column;
  if (sortColumn_ >= 0) source.Sort(sortColumn_, false);
  ShowSortColumn();
  totalCount_ = source.TotalCount();
  list_->StartRows(source.Count());
}

void ExplorerListPane::RefreshRows() {
  GuardedRows& source = list_->Rows();
  source.Retry();
  totalCount_ = source.TotalCount();
  list_->RestoreRows(source.Count(), SelectionKeys::Change::Contents);
  if (countChanged) countChanged();
}

void ExplorerListPane::SortBy(int column, bool descending) {
  GuardedRows& source = list_->Rows();
  if (column < 0 || column >= static_cast<int>(columns_.size()) || !source.CanSort(column)) return;
  sortColumn_ = column;
  sortDescending_ = descending;
  input_->Reset();
  source.Sort(column, descending);
  ShowSortColumn();
  list_->RestoreRows(source.Count(), SelectionKeys::Change::Order);
}

void ExplorerListPane::OnHeading(int column) {
  SortBy(column, column == sortColumn_ && !sortDescending_);
}

void ExplorerListPane::ShowSearchText(const wxString& text) {
  if (search_->GetValue() != text) search_->ChangeValue(text);
  // There is only something to cancel when there is text; a box that is not made of parts knows that itself.
  const bool useful = search_->GetChildren().empty() || !text.empty();
  if (search_->IsCancelButtonVisible() != useful) search_->ShowCancelButton(useful);
}

ExplorerListState ExplorerListPane::State() const {
  return {filter_, sortColumn_, sortDescending_, list_->Keys(), list_->Place()};
}

void ExplorerListPane::RestoreState(const ExplorerListState& state) {
  FilterBy(state.filter);
  SortBy(state.sortColumn, state.sortDescending);
  list_->RestoreSelection(state.selection, state.place);
}

void ExplorerListPane::FilterBy(const wxString& text) {
  GuardedRows& source = list_->Rows();
  ShowSearchText(text);
  if (text == filter_ || !source.CanFilter()) return;
  const bool narrowing = text.StartsWith(filter_);
  filter_ = text;
  input_->Reset();
  source.Filter(text);
  list_->RestoreRows(source.Count(),
                     narrowing ? SelectionKeys::Change::Narrowing : SelectionKeys::Change::Widening);
  if (countChanged) countChanged();
}

ExplorerRow ExplorerListPane::Row(std::int64_t row) const {
  if (const ExplorerRow* cached = list_->Cache().Peek(row)) return *cached;
  const auto& source = list_->Rows().Source();
  if (!source || row < 0) return {};
  std::vector<ExplorerRow> page = source->Page(row, 1);
  return page.empty() ? ExplorerRow() : std::move(page.front());
}

std::vector<ExplorerRow> ExplorerListPane::KeyedRows() const {
  ExplorerRows& source = *list_->Rows().Source();
  const auto& keyed = list_->Keys().Rows();
  std::vector<ExplorerRow> result;
  std::vector<ExplorerRow> page;  // rows from `first` on
  std::int64_t first = 0;
  for (std::size_t i = 0; i < keyed.size(); ++i) {
    const auto& [position, key] = keyed[i];
    const ExplorerRow* cached = list_->Cache().Peek(position);
    if (cached && cached->key == key) {
      result.push_back(*cached);
      continue;
    }
    if (position < first || position >= first + static_cast<std::int64_t>(page.size())) {
      // Neighbours are read together.
      std::size_t end = i + 1;
      while (end < keyed.size() && keyed[end].first == keyed[end - 1].first + 1) ++end;
      first = position;
      page = source.Page(position, static_cast<std::int64_t>(end - i));
    }
    const auto place = static_cast<std::size_t>(position - first);
    if (place < page.size() && page[place].key == key) {
      result.push_back(page[place]);
      continue;
    }
    // The list has changed behind the screen: what was selected is the key, not the place.
    const std::int64_t present = source.PositionOf(key);
    const auto moved = present < 0 ? std::vector<ExplorerRow>() : source.Page(present, 1);
    if (!moved.empty() && moved.front().key == key) result.push_back(moved.front());
  }
  return result;
}

std::vector<wxString> ExplorerListPane::SelectedKeys() const {
  std::vector<wxString> keys;
  if (list_->Keys().Complete()) {
    keys.reserve(list_->Keys().Rows().size());
    for (const auto& keyed : list_->Keys().Rows()) keys.push_back(keyed.second);
    return keys;
  }
  for (auto& row : SelectedRows()) keys.push_back(std::move(row.key));
  return keys;
}

std::vector<ExplorerRow> ExplorerListPane::SelectedRows() const {
  if (!list_->Rows().Source()) return {};
  if (list_->Keys().Complete()) return KeyedRows();
  std::vector<ExplorerRow> result;
  for (const RowRange& range : list_->Selection().Selected().Ranges()) {
    for (std::int64_t first = range.first; first <= range.last; first += kReadRows) {
      std::vector<ExplorerRow> page =
          list_->Rows().Source()->Page(first, std::min(kReadRows, range.last - first + 1));
      std::move(page.begin(), page.end(), std::back_inserter(result));
    }
  }
  return result;
}

}  // namespace mindloft
