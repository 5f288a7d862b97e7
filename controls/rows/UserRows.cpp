#include "controls/rows/UserRows.h"

#include "controls/rows/DirectoryImages.h"

namespace mindloft {

UserRows::UserRows(Corvane::UserView view)
    : RecordRows(std::move(view), {Order::Name, Order::FullName, Order::Description}) {}

namespace {

std::vector<wxString> FieldsOf(const UserRecord& record) {
  return {ToWx(record.name), ToWx(record.fullName), ToWx(record.description)};
}

int ImageOf(const UserRecord& record) {
  return record.enabled ? UserImage : DisabledUserImage;
}

}  // namespace

ExplorerRow UserRows::RowOf(const UserRecord& record) {
  return {JoinFields(FieldsOf(record)), ToWx(Corvane::IdText(record.id)), ImageOf(record)};
}

std::vector<wxString> UserRows::Fields(const UserRecord& record) const {
  return FieldsOf(record);
}

int UserRows::Image(const UserRecord& record) const {
  return ImageOf(record);
}

}  // namespace mindloft
