#include "core/IdSource.h"

#include <limits>

#include "backend/errors/Error.h"

namespace mindloft {

std::int32_t IdSource::Next() {
  if (last_ == std::numeric_limits<std::int32_t>::max()) {
    throw Error(ErrorNumber::Overflow, "no identifier is left in this process");
  }
  return ++last_;
}

}  // namespace mindloft
