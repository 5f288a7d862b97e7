#pragma once

#include <memory>
#include <vector>

#include "controls/explorer/ExplorerRows.h"
#include "editors/members/ListedUsers.h"
#include "editors/members/MemberItems.h"

namespace mindloft {

/// A list of stored users as it will be when pending changes have been stored: the users who come stand
/// before the stored ones, sorted among themselves, and those who go are left out. However many users are
/// stored, only the pages on the screen are read.
class OverlaidUsers : public ExplorerRows {
 public:
  /// `coming` is the statu of the items whose users are shown; the users of the others are left out. The
  /// items must outlive the list; after a change of them call `ItemsChanged`.
  OverlaidUsers(std::shared_ptr<ExplorerRows> stored, const MemberItems& items, MemberStatu coming);
  void ItemsChanged();

  std::int64_t Count() override;
  std::int64_t TotalCount() override;
  std::vector<ExplorerRow> Page(std::int64_t first, std::int64_t count) override;
  bool CanSort(int column) const override { return stored_->CanSort(column); }
  void Sort(int column, bool descending) override;
  bool CanFilter() const override { return true; }
  void Filter(const wxString& text) override;
  std::int64_t FindPrefix(const wxString& prefix, std::int64_t from) override;
  std::int64_t PositionOf(const wxString& key) override;
  std::vector<std::int64_t> PositionsOf(const std::vector<wxString>& keys) override;

 private:
  void FindHidden();
  void NeedHidden() {
    if (hiddenStale_) FindHidden();
  }
  bool IsHidden(std::int64_t place) const;
  /// The first place of a stored user, at or behind one, who is not left out.
  std::int64_t NextShown(std::int64_t place) const;
  /// The number of the stored user at that place; -1 when he is left out, or the place is -1.
  std::int64_t ShownOf(std::int64_t place);
  /// From the number of a shown stored user to the place among all stored ones, and back.
  std::int64_t PlaceOf(std::int64_t shown) const;
  std::int64_t ShownBefore(std::int64_t place) const;
  std::int64_t FindForward(const wxString& prefix, std::int64_t from);

  std::shared_ptr<ExplorerRows> stored_;
  const MemberItems& items_;
  MemberStatu coming_;
  ListedUsers first_;
  std::vector<std::int64_t> hidden_;  ///< places of stored users who are left out, ascending
  bool hiddenStale_ = true;
  int column_ = 0;
  bool descending_ = false;
  wxString filter_;
};

}  // namespace mindloft
