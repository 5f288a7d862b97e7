#pragma once

#include "mainwindow/DirectoryKind.h"

namespace mindloft {

// The commands on the users of the whole directory.

/// Opens the editor on a new user and tells of the user once it is stored.
void NewUser(const KindScope& scope, const std::vector<wxString>& keys);
/// Deletes users: never one's own account, never without the privilege, and never without asking.
void DeleteSelectedUsers(const KindScope& scope, const std::vector<wxString>& keys);
void ShowUserProperties(const KindScope& scope, const std::vector<wxString>& keys);

}  // namespace mindloft
