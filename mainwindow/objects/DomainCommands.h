#pragma once

#include "mainwindow/DirectoryKind.h"

namespace mindloft {

// The commands on knowledge domains.

void NewDomain(const KindScope& scope, const std::vector<wxString>& keys);
/// Deletes domains one after the other, each wholly or not at all, while a window shows how far it is.
void DeleteSelectedDomains(const KindScope& scope, const std::vector<wxString>& keys);
void ShowDomainProperties(const KindScope& scope, const std::vector<wxString>& keys);

}  // namespace mindloft
