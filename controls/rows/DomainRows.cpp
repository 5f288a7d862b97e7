#include "controls/rows/DomainRows.h"

#include "backend/tessaline/Services.h"
#include "controls/rows/DirectoryImages.h"

namespace mindloft {

namespace {

// Texts of the state column.
constexpr int kDomainEnabled = 61105;
constexpr int kDomainDisabled = 61106;

}  // namespace

DomainRows::DomainRows(Corvane::DomainView view)
    : RecordRows(std::move(view), {Order::Name, Order::Description, Order::State}) {}

std::vector<wxString> DomainRows::Fields(const DomainRecord& record) const {
  return {ToWx(record.name), ToWx(record.description),
          GetResource().GetString(record.disabled ? kDomainDisabled : kDomainEnabled)};
}

int DomainRows::Image(const DomainRecord& record) const {
  return record.disabled ? DisabledDomainImage : DomainImage;
}

}  // namespace mindloft
