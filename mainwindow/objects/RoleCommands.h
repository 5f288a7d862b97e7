#pragma once

#include "mainwindow/DirectoryKind.h"

namespace mindloft {

// The command on roles: they are neither made nor deleted in the console.

void ShowRoleProperties(const KindScope& scope, const std::vector<wxString>& keys);

}  // namespace mindloft
