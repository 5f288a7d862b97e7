#pragma once

#include <string>

#include "backend/directory/Records.h"

namespace mindloft {

/// ISO 8601 in UTC with seconds: "2024-05-31T09:30:00Z".
std::string IsoTime(Timestamp time);

}  // namespace mindloft
