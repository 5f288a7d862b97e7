#pragma once

#include <exception>
#include <functional>
#include <memory>

#include "controls/explorer/ExplorerRows.h"

namespace mindloft {

/// A row source that cannot throw, for a list that is being painted. The first failure is reported to
/// `onFailure`; from then on, until `Retry` or another source, nothing is asked any more: positions are -1,
/// pages are empty, and the counts are the last known ones.
class GuardedRows : public ExplorerRows {
 public:
  void SetSource(std::shared_ptr<ExplorerRows> source);
  const std::shared_ptr<ExplorerRows>& Source() const { return source_; }
  void Retry() { failed_ = false; }

  std::int64_t Count() override;
  std::int64_t TotalCount() override;
  std::vector<ExplorerRow> Page(std::int64_t first, std::int64_t count) override;
  bool CanSort(int column) const override;
  void Sort(int column, bool descending) override;
  bool StartsSorted() const override { return !source_ || source_->StartsSorted(); }
  bool CanFilter() const override;
  void Filter(const wxString& text) override;
  std::int64_t FindPrefix(const wxString& prefix, std::int64_t from) override;
  std::int64_t PositionOf(const wxString& key) override;
  std::vector<std::int64_t> PositionsOf(const std::vector<wxString>& keys) override;

  /// Called once for a failure, within the failing call: it must not show anything at once.
  std::function<void(std::exception_ptr)> onFailure;

 private:
  template <typename Result, typename Question>
  Result Ask(Result otherwise, Question question) const;

  std::shared_ptr<ExplorerRows> source_;
  mutable bool failed_ = false;
  std::int64_t count_ = 0;
  std::int64_t totalCount_ = 0;
};

}  // namespace mindloft
