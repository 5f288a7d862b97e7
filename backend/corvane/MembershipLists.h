#pragma once

#include <string>

#include "backend/corvane/Session.h"

namespace mindloft::Corvane {

/// Stores two lists of identifiers joined by ";" as one change of the owner's memberships, and returns the
/// owner's version afterwards. Nothing is called when both lists are empty. `progress`: see Progress.
Version ChangeMemberships(const Session& session, Membership membership, const ObjectVersion& owner,
                          const std::string& additions, const std::string& removals,
                          const Progress& progress = {});

}  // namespace mindloft::Corvane
