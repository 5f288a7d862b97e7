#include "editors/domains/DomainFields.h"

#include <vector>

#include "backend/corvane/Corvane.h"
#include "backend/tessaline/Services.h"
#include "editors/ResolveConflict.h"
#include "editors/domains/DomainTexts.h"

namespace mindloft {
namespace {

constexpr int kName = 59306;
constexpr int kDescription = 59308;
constexpr int kState = 59309;

wxString StyleName(const ObjectId& style) {
  const auto found = GetApplication()->Server()->Styles()->Item(Corvane::IdText(style));
  return found ? ToWx(found->Name()) : GetResource().GetString(texts::kNoStyle);
}

wxString StateName(const bool& disabled) {
  return GetResource().GetString(disabled ? texts::kDomainDisabled : texts::kDomainEnabled);
}

}  // namespace

bool MergeDomain(wxWindow* parent, Corvane::KDomain& domain, const Error& conflict) {
  const std::vector<RecordField<DomainRecord>> fields = {
      Field(kName, &DomainRecord::name), Field(kDescription, &DomainRecord::description),
      Field<DomainRecord, ObjectId>(texts::kFieldStyle, &DomainRecord::style, StyleName),
      Field<DomainRecord, bool>(kState, &DomainRecord::disabled, StateName)};
  return ResolveConflict(parent, domain, fields, conflict);
}

}  // namespace mindloft
