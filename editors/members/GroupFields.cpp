#include "editors/members/GroupFields.h"

#include <utility>
#include <vector>

#include "backend/corvane/DGroup.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "controls/rows/DirectoryTexts.h"
#include "editors/ResolveConflict.h"

namespace mindloft {
namespace {

constexpr int kSeparator = 61659;
constexpr std::pair<std::uint32_t, int> kPrivilegeTexts[] = {{ReadDocuments, 61652},
                                                             {WriteDocuments, 61653},
                                                             {ManageDomainUsers, 61654},
                                                             {ManageDomainGroups, 61655},
                                                             {ChangeDomain, 61656}};

wxString InWords(const std::uint32_t& mask) {
  std::vector<wxString> words;
  for (const auto& [privilege, text] : kPrivilegeTexts)
    if (mask & privilege) words.push_back(GetResource().GetString(text));
  return GetStringHelper().JoinStrings(words, GetResource().GetString(kSeparator));
}

}  // namespace

bool MergeGroup(wxWindow* parent, Corvane::DGroup& group, const Error& conflict) {
  const std::vector<RecordField<GroupRecord>> fields = {
      Field(texts::kColumnName, &GroupRecord::name),
      Field(texts::kColumnDescription, &GroupRecord::description),
      Field<GroupRecord, std::uint32_t>(texts::kColumnPrivileges, &GroupRecord::domainPrivileges, InWords)};
  return ResolveConflict(parent, group, fields, conflict);
}

}  // namespace mindloft
