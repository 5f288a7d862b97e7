#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "controls/explorer/ExplorerRows.h"

namespace mindloft {

/// Rows that are held in memory, sorted and searched as the directory does it: without regard to case, width
/// or the composition of accents. Rows that are equal keep their order.
class ListedUsers : public ExplorerRows {
 public:
  /// The order before a heading is clicked: by name, or the given one.
  enum class Start { Sorted, AsGiven };

  ListedUsers() = default;
  explicit ListedUsers(std::vector<ExplorerRow> rows, Start start = Start::Sorted);

  std::int64_t Count() override { return static_cast<std::int64_t>(shown_.size()); }
  std::int64_t TotalCount() override { return static_cast<std::int64_t>(entries_.size()); }
  std::vector<ExplorerRow> Page(std::int64_t first, std::int64_t count) override;
  bool CanSort(int column) const override;
  void Sort(int column, bool descending) override;
  bool StartsSorted() const override { return start_ == Start::Sorted; }
  bool CanFilter() const override { return true; }
  void Filter(const wxString& text) override;
  std::int64_t FindPrefix(const wxString& prefix, std::int64_t from) override;
  std::int64_t PositionOf(const wxString& key) override;

 private:
  struct Entry {
    ExplorerRow row;
    std::vector<std::string> folded;  ///< the fields
  };

  void Show();
  const std::string& Key(std::size_t entry) const;

  std::vector<Entry> entries_;
  std::vector<std::size_t> shown_;  ///< places of entries
  std::unordered_map<wxString, std::size_t> positions_;
  Start start_ = Start::Sorted;
  bool sorted_ = false;  ///< by `column_`
  std::size_t column_ = 0;
  bool descending_ = false;
  std::string filter_;
};

}  // namespace mindloft
