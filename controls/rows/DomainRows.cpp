#include "controls/rows/DomainRows.h"

#include "backend/tessaline/Services.h"
#include "controls/rows/DirectoryImages.h"
#include "controls/rows/DirectoryTexts.h"

namespace mindloft {

DomainRows::DomainRows(Corvane::DomainView view)
    : RecordRows(std::move(view), {Order::Name, Order::Description, Order::State}) {}

std::vector<wxString> DomainRows::Fields(const DomainRecord& record) const {
  return {ToWx(record.name), ToWx(record.description),
          GetResource().GetString(record.disabled ? texts::kStateDisabled : texts::kStateEnabled)};
}

int DomainRows::Image(const DomainRecord& record) const {
  return record.disabled ? DisabledDomainImage : DomainImage;
}

}  // namespace mindloft
