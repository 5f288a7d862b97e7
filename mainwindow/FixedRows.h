#pragma once

#include "controls/explorer/ExplorerRows.h"

namespace mindloft {

/// A short list of rows of one field: the folders below a node. Their order at first is the given
/// one.
class FixedRows : public ExplorerRows {
 public:
  explicit FixedRows(std::vector<ExplorerRow> rows);

  std::int64_t Count() override { return static_cast<std::int64_t>(shown_.size()); }
  std::int64_t TotalCount() override { return static_cast<std::int64_t>(rows_.size()); }
  std::vector<ExplorerRow> Page(std::int64_t first, std::int64_t count) override;
  bool CanSort(int column) const override { return column == 0; }
  void Sort(int column, bool descending) override;
  bool StartsSorted() const override { return false; }
  bool CanFilter() const override { return true; }
  void Filter(const wxString& text) override;
  std::int64_t FindPrefix(const wxString& prefix, std::int64_t from) override;
  std::int64_t PositionOf(const wxString& key) override;

 private:
  std::vector<ExplorerRow> rows_, shown_;
};

}  // namespace mindloft
