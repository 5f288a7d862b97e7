#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "controls/explorer/ExplorerRows.h"
#include "editors/NameRules.h"

namespace mindloft {

/// Rows that are held in memory, sorted and searched as the directory does it in the session of the login.
/// Rows that are equal keep their order.
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
    std::vector<std::string> texts;   ///< the fields
    std::vector<std::string> folded;  ///< the fields, for searching
    std::string key;                  ///< of the field by which the list is sorted
  };

  void Show();
  /// Brings what depends on the rules and the column up to date.
  void Prepare();

  std::vector<Entry> entries_;
  std::vector<std::size_t> shown_;  ///< places of entries
  std::unordered_map<wxString, std::size_t> positions_;
  NameRules rules_;
  Start start_ = Start::Sorted;
  bool sorted_ = false;  ///< by `column_`
  std::size_t column_ = 0;
  std::optional<std::size_t> keyed_;  ///< the column of the keys
  bool descending_ = false;
  std::string filter_;
};

}  // namespace mindloft
