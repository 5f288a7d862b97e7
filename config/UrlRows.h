#pragma once

#include <cstddef>
#include <vector>

#include "config/UrlList.h"
#include "controls/explorer/ExplorerRows.h"

namespace mindloft {

/// The rows of the URL list: in the registry's order, as long as nobody clicks the heading.
class UrlRows : public ExplorerRows {
 public:
  explicit UrlRows(std::vector<KnownUrl> known);

  std::int64_t Count() override { return static_cast<std::int64_t>(shown_.size()); }
  std::int64_t TotalCount() override { return static_cast<std::int64_t>(known_.size()); }
  std::vector<ExplorerRow> Page(std::int64_t first, std::int64_t count) override;
  bool CanSort(int) const override { return false; }
  void Sort(int, bool) override {}
  bool StartsSorted() const override { return false; }
  bool CanFilter() const override { return true; }
  void Filter(const wxString& text) override;
  std::int64_t FindPrefix(const wxString& prefix, std::int64_t from) override;
  std::int64_t PositionOf(const wxString& key) override;

  /// The whole URL, also where the list shows only its beginning; nothing when there is none of that key.
  const KnownUrl* Find(const wxString& key) const;
  /// How many URLs, shown or not, are exactly that text.
  std::size_t CountOf(const wxString& url) const;
  /// Changes the URL of that key, or adds it at the end.
  void Put(const KnownUrl& known);
  void Remove(const wxString& key);

 private:
  void Show();

  std::vector<KnownUrl> known_;
  std::vector<std::size_t> shown_;  ///< places in known_
  wxString filter_;                 ///< in lower case
};

}  // namespace mindloft
