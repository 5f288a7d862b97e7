#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "controls/explorer/RowCache.h"
#include "controls/explorer/SelectionModel.h"

namespace mindloft {

/// The keys of the selected rows, so that a selection follows its rows when the list is sorted, filtered or
/// read anew. They are taken when rows are selected, because afterwards a position may mean another row.
class SelectionKeys {
 public:
  /// Selections of more rows than this do not follow, unless all rows but so many are selected.
  static constexpr std::int64_t kLimit = 2000;

  using KeyedRow = std::pair<std::int64_t, wxString>;

  /// After each change of the selection or the focus.
  void Update(const SelectionModel& selection, RowCache& cache, ExplorerRows& rows);
  /// What the list is going through.
  enum class Change {
    Order,      ///< the same rows elsewhere: all stay selected when all were
    Contents,   ///< read anew: the known rows stay selected, all of very many only while none has come; a
                ///< focused row that has gone leaves the focus to its successor
    Narrowing,  ///< some of the rows: all stay selected when all were
    Widening,   ///< other rows: only those stay selected whose keys are known
  };
  /// Selects and focuses the known rows at their new places in a list of `count` rows; whether the selected
  /// set is another one now. Update must follow.
  bool Restore(SelectionModel& selection, ExplorerRows& rows, std::int64_t count, Change change);

  /// Whether `Rows` knows all selected rows.
  bool Complete() const { return complete_; }
  /// Selected rows and their keys, in list order.
  const std::vector<KeyedRow>& Rows() const { return keys_; }

 private:
  void Track(const RowRanges& tracked, RowCache& cache, ExplorerRows& rows);

  std::vector<KeyedRow> keys_;  ///< of the selected rows, or of the others when these are fewer
  bool complement_ = false;
  bool everything_ = false;
  bool overflow_ = false;
  bool anything_ = false;
  bool complete_ = true;
  std::int64_t focus_ = -1;
  wxString focusKey_;
};

}  // namespace mindloft
