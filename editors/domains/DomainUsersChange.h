#pragma once

#include <string>

#include "backend/directory/Changes.h"

namespace mindloft {

namespace Corvane {
class KDomain;
}

/// Gives users access to a stored domain and takes it away: two lists of identifiers joined by ";". What
/// others change in the domain meanwhile does not stand against it, since it says of each user where the user
/// shall be; the domain object stays on the version that it is on.
void ChangeDomainUsers(const Corvane::KDomain& domain, const std::string& additions,
                       const std::string& removals, const Progress& progress);

}  // namespace mindloft
