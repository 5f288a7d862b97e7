#pragma once

#include <string>

#include "backend/directory/Records.h"
#include "backend/directory/collation/LanguageRules.h"

namespace mindloft {

/// The logged-in user on whose behalf a call runs.
struct Caller {
  ObjectId user = 0;
  std::string name;
  LanguageRules rules = LanguageRules::Neutral;  ///< that names are ordered and searched by
};

}  // namespace mindloft
