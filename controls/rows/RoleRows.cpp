#include "controls/rows/RoleRows.h"

#include "controls/rows/DirectoryImages.h"

namespace mindloft {

RoleRows::RoleRows(Corvane::RoleView view) : RecordRows(std::move(view), {Order::Name, Order::Privileges}) {}

std::vector<wxString> RoleRows::Fields(const RoleRecord& record) const {
  return {ToWx(record.name), ToWx(record.privilegeText)};
}

int RoleRows::Image(const RoleRecord&) const {
  return RoleImage;
}

}  // namespace mindloft
