#include "mainwindow/objects/RoleCommands.h"

#include "backend/corvane/Corvane.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "editors/members/frmRoleProperty.h"
#include "mainwindow/objects/ObjectTexts.h"

namespace mindloft {

// Refresh knows no kind for roles: their names and privileges do not change here.
void ShowRoleProperties(const KindScope& scope, const std::vector<wxString>& keys) {
  const auto role = keys.empty() ? nullptr : scope.server->Roles()->Item(ToUtf8(keys.front()));
  if (!role) return GetMessenger().ShowMessage(texts::kObjectIsGone, {}, scope.owner);
  frmRoleProperty(scope.owner).OpenWindow(role);
}

}  // namespace mindloft
