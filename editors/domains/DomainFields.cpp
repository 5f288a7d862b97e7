#include "editors/domains/DomainFields.h"

#include <vector>

#include "backend/corvane/Corvane.h"
#include "backend/tessaline/Services.h"
#include "controls/rows/DirectoryTexts.h"
#include "controls/styles/StyleTexts.h"
#include "editors/ResolveConflict.h"
#include "editors/domains/DomainTexts.h"

namespace mindloft {
namespace {

wxString StyleName(const ObjectId& style) {
  const auto found = GetApplication()->Server()->Styles()->Item(Corvane::IdText(style));
  return found ? ToWx(found->Name()) : GetResource().GetString(texts::kEmptyStyle);
}

wxString StateName(const bool& disabled) {
  return GetResource().GetString(disabled ? texts::kStateDisabled : texts::kStateEnabled);
}

/// Text and formats together: whoever takes one side's takes the whole description of it.
RecordField<DomainRecord> DescriptionField() {
  return {texts::kColumnDescription, [](const DomainRecord& domain) { return ToWx(domain.description); },
          [](const DomainRecord& one, const DomainRecord& other) {
            return one.description == other.description && one.document == other.document;
          },
          [](DomainRecord& to, const DomainRecord& from) {
            to.description = from.description;
            to.document = from.document;
          },
          texts::kReadsAlike};
}

}  // namespace

bool MergeDomain(wxWindow* parent, Corvane::KDomain& domain, const Error& conflict) {
  const std::vector<RecordField<DomainRecord>> fields = {
      Field(texts::kColumnName, &DomainRecord::name), DescriptionField(),
      Field<DomainRecord, ObjectId>(texts::kFieldStyle, &DomainRecord::style, StyleName),
      Field<DomainRecord, bool>(texts::kColumnState, &DomainRecord::disabled, StateName)};
  return ResolveConflict(parent, domain, fields, conflict);
}

}  // namespace mindloft
