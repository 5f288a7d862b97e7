#pragma once

#include <wx/string.h>

#include <cstdint>
#include <vector>

namespace mindloft {

/// One row of an explorer list: its fields joined by the explorer's break character.
struct ExplorerRow {
  wxString fields;
  wxString key;    ///< the identifier of the row's object
  int image = -1;  ///< index into the explorer's images; -1: none
};

/// Where an explorer list takes its rows from. The list asks for what is on the screen, a page at a time.
class ExplorerRows {
 public:
  virtual ~ExplorerRows() = default;
  /// Rows that pass the filter, and all rows.
  virtual std::int64_t Count() = 0;
  virtual std::int64_t TotalCount() = 0;
  virtual std::vector<ExplorerRow> Page(std::int64_t first, std::int64_t count) = 0;
  /// Whether a click on that column's heading can sort.
  virtual bool CanSort(int column) const = 0;
  virtual void Sort(int column, bool descending) = 0;
  /// Whether the list sorts the rows at first; otherwise they come in an order of their own until a heading
  /// is clicked.
  virtual bool StartsSorted() const { return true; }
  virtual bool CanFilter() const = 0;
  virtual void Filter(const wxString& text) = 0;
  /// First row from `from` on, then from the top, whose sorted text starts with the prefix; -1 when there is
  /// none.
  virtual std::int64_t FindPrefix(const wxString& prefix, std::int64_t from) = 0;
  /// Position of the row of that key; -1 when it is not listed.
  virtual std::int64_t PositionOf(const wxString& key) = 0;
  /// The same for many rows, in the given order; to be overridden where one question is quicker than many.
  virtual std::vector<std::int64_t> PositionsOf(const std::vector<wxString>& keys) {
    std::vector<std::int64_t> positions;
    positions.reserve(keys.size());
    for (const wxString& key : keys) positions.push_back(PositionOf(key));
    return positions;
  }
};

}  // namespace mindloft
