#include "editors/domains/DomainCopyPage.h"

#include <wx/checkbox.h>

#include <memory>

#include "backend/corvane/Corvane.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryList.h"
#include "controls/rows/DomainRows.h"
#include "core/forms/Form.h"
#include "editors/domains/DomainLists.h"

namespace mindloft {

DomainCopyPage::DomainCopyPage(const FormDialog& form, std::function<void()> changed) {
  ctSource = FindControl<ctExplorer>(form, "ctSource");
  chkCopyGroups = FindControl<wxCheckBox>(form, "chkCopyGroups");
  chkCopyUsers = FindControl<wxCheckBox>(form, "chkCopyUsers");
  chkCopyMembers = FindControl<wxCheckBox>(form, "chkCopyMembers");
  PrepareDirectoryList(*ctSource);
  for (auto* box : {chkCopyGroups, chkCopyUsers, chkCopyMembers}) {
    box->SetValue(true);
    box->Bind(wxEVT_CHECKBOX, [changed](wxCommandEvent&) { changed(); });
  }
  ctSource->lvSelChange = changed;
  ctSource->lvCountChange = std::move(changed);
}

void DomainCopyPage::Display() {
  ShowDomainList(*ctSource, std::make_shared<DomainRows>(GetApplication()->Server()->KDomains()->View()));
}

DomainCopy DomainCopyPage::Chosen() const {
  if (ctSource->SelectedListCount() != 1) return {};
  const bool groups = chkCopyGroups->GetValue(), users = chkCopyUsers->GetValue();
  if (!groups && !users) return {};
  return {Corvane::IdFromText(ToUtf8(ctSource->SelectedListRows().front().key)), groups, users,
          groups && users && chkCopyMembers->GetValue()};
}

void DomainCopyPage::SetButtonStatus(bool mayChange) {
  const bool source = mayChange && ctSource->SelectedListCount() == 1;
  chkCopyGroups->Enable(source);
  chkCopyUsers->Enable(source);
  chkCopyMembers->Enable(source && chkCopyGroups->GetValue() && chkCopyUsers->GetValue());
}

}  // namespace mindloft
