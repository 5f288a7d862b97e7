#pragma once

#include "mainwindow/DirectoryKind.h"

namespace mindloft {

// The commands on the groups of one knowledge domain, that of the scope.

void NewGroup(const KindScope& scope, const std::vector<wxString>& keys);
/// Deletes groups: none that is built in, and never without asking.
void DeleteSelectedGroups(const KindScope& scope, const std::vector<wxString>& keys);
void ShowGroupProperties(const KindScope& scope, const std::vector<wxString>& keys);

}  // namespace mindloft
