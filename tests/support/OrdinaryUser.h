#pragma once

#include <memory>

namespace mindloft::test {

/// While it lives the process may do with files what an ordinary user may: permissions mean nothing to the
/// superuser, as whom tests may run. Files that are to be reached then must be open to everybody.
class OrdinaryUser {
 public:
  OrdinaryUser();
  ~OrdinaryUser();
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  bool changed_ = false;
};

}  // namespace mindloft::test
