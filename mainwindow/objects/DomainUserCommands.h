#pragma once

#include "mainwindow/DirectoryKind.h"

namespace mindloft {

// The commands on the users of one knowledge domain, that of the scope.

/// Opens the dialog that gives users access to the domain.
void AddDomainUsers(const KindScope& scope, const std::vector<wxString>& keys);
/// Takes users out of the domain; their accounts stay.
void RemoveDomainUsers(const KindScope& scope, const std::vector<wxString>& keys);
void ShowDomainUserProperties(const KindScope& scope, const std::vector<wxString>& keys);

}  // namespace mindloft
