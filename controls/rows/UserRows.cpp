#include "controls/rows/UserRows.h"

#include "controls/rows/DirectoryImages.h"

namespace mindloft {

UserRows::UserRows(Corvane::UserView view)
    : RecordRows(std::move(view), {Order::Name, Order::FullName, Order::Description}) {}

std::vector<wxString> UserRows::Fields(const UserRecord& record) const {
  return {ToWx(record.name), ToWx(record.fullName), ToWx(record.description)};
}

int UserRows::Image(const UserRecord& record) const {
  return record.enabled ? UserImage : DisabledUserImage;
}

}  // namespace mindloft
