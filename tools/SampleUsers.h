#pragma once

#include <cstdint>

#include "backend/directory/Records.h"
#include "tools/SampleLocale.h"
#include "tools/SampleRandom.h"

namespace mindloft {

/// Invents users one after the other, the same for a seed. Login names are unique: each ends in the user's
/// number.
class SampleUsers {
 public:
  explicit SampleUsers(std::uint64_t seed) : random_(seed) {}

  /// The next user; valid until the next call.
  const UserRecord& Next();

 private:
  void WriteNames(const SampleLocale& locale);
  void WriteTelephone(const SampleLocale& locale);
  void WriteDescription(const SampleLocale& locale);

  SampleRandom random_;
  // One record for all, so that its texts keep their memory.
  UserRecord user_;
  std::uint64_t number_ = 1000;
};

}  // namespace mindloft
