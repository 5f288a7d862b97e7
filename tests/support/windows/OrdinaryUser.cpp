#include "tests/support/OrdinaryUser.h"

namespace mindloft::test {

// A file's read-only mark binds administrators too.
OrdinaryUser::OrdinaryUser() = default;
OrdinaryUser::~OrdinaryUser() {
  static_cast<void>(changed_);
}

}  // namespace mindloft::test
