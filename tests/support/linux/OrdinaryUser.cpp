#include "tests/support/OrdinaryUser.h"

#include <unistd.h>

#include <stdexcept>

namespace mindloft::test {
namespace {

constexpr uid_t nobody = 65534;

}  // namespace

OrdinaryUser::OrdinaryUser() : changed_(geteuid() == 0) {
  if (changed_ && seteuid(nobody) != 0) throw std::runtime_error("seteuid");
}

OrdinaryUser::~OrdinaryUser() {
  if (changed_ && seteuid(0) != 0) _exit(1);
}

}  // namespace mindloft::test
