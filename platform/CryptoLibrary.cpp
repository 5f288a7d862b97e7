#include "platform/CryptoLibrary.h"

#include <sodium.h>

#include "backend/errors/Error.h"

namespace mindloft::platform {

void PrepareCryptoLibrary() {
  if (sodium_init() < 0) throw Error(ErrorNumber::Unexpected, "libsodium has no source of random numbers");
}

}  // namespace mindloft::platform
