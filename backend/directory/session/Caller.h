#pragma once

#include <string>

#include "backend/directory/Records.h"

namespace mindloft {

/// The logged-in user on whose behalf a call runs.
struct Caller {
  ObjectId user = 0;
  std::string name;
};

}  // namespace mindloft
