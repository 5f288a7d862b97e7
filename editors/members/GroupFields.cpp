#include "editors/members/GroupFields.h"

#include <utility>
#include <vector>

#include "backend/corvane/DGroup.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "editors/ResolveConflict.h"

namespace mindloft {
namespace {

constexpr int kName = 59306;
constexpr int kDescription = 59308;
constexpr int kPrivileges = 59310;
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
      Field(kName, &GroupRecord::name), Field(kDescription, &GroupRecord::description),
      Field<GroupRecord, std::uint32_t>(kPrivileges, &GroupRecord::domainPrivileges, InWords)};
  return ResolveConflict(parent, group, fields, conflict);
}

}  // namespace mindloft
