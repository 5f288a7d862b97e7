#pragma once

#include <set>
#include <utility>
#include <vector>

#include "controls/explorer/ExplorerRows.h"

namespace mindloft::test {

/// Rows "0000000", "0000001", ... whose positions are computed, and which remember what was asked of them.
/// Sorts by columns 0 and 1, ascending or descending, and filters and finds by the beginning of the name.
class FakeRows : public ExplorerRows {
 public:
  explicit FakeRows(std::int64_t rows) : rows_(rows) {}

  std::int64_t Count() override;
  std::int64_t TotalCount() override { return rows_; }
  std::vector<ExplorerRow> Page(std::int64_t first, std::int64_t count) override;
  bool CanSort(int column) const override { return column < 2; }
  void Sort(int column, bool descending) override;
  bool CanFilter() const override { return true; }
  void Filter(const wxString& text) override;
  std::int64_t FindPrefix(const wxString& prefix, std::int64_t from) override;
  std::int64_t PositionOf(const wxString& key) override;

  static wxString Name(std::int64_t number);
  static wxString Key(std::int64_t number) { return "k" + Name(number); }

  std::set<std::int64_t> removed;  ///< numbers that are gone
  bool failing = false;
  int failures = 0;
  std::int64_t rowsAsked = 0;
  std::int64_t firstAsked = 0;
  std::int64_t lastAsked = 0;
  int sorts = 0;
  int filters = 0;
  void ForgetQuestions();

 private:
  /// The numbers from the first up to the second, exclusive, begin with the text.
  std::pair<std::int64_t, std::int64_t> NumbersFrom(const wxString& prefix) const;
  std::int64_t RemovedBetween(std::int64_t first, std::int64_t end) const;
  void MayFail();

  std::int64_t rows_;
  bool descending_ = false;
  wxString filter_;
};

}  // namespace mindloft::test
