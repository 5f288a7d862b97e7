#include "controls/rows/GroupRows.h"

#include "controls/rows/DirectoryImages.h"

namespace mindloft {

GroupRows::GroupRows(Corvane::GroupView view)
    : RecordRows(std::move(view), {Order::Name, Order::Description}) {}

std::vector<wxString> GroupRows::Fields(const GroupRecord& record) const {
  return {ToWx(record.name), ToWx(record.description)};
}

int GroupRows::Image(const GroupRecord&) const {
  return GroupImage;
}

}  // namespace mindloft
