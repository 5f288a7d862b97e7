#pragma once

#include "controls/rows/RecordRows.h"

namespace mindloft {

/// Knowledge domains: name, description, state in words.
class DomainRows : public RecordRows<DomainRecord> {
 public:
  explicit DomainRows(Corvane::DomainView view);

 protected:
  std::vector<wxString> Fields(const DomainRecord& record) const override;
  int Image(const DomainRecord& record) const override;
};

}  // namespace mindloft
