#include "platform/CryptoLibrary.h"

#include <gcrypt.h>

#include "backend/errors/Error.h"

namespace mindloft::platform {

void PrepareCryptoLibrary() {
  static const bool ready = [] {
    if (!gcry_check_version("1.10.0")) return false;
    // Locked memory is small and not needed: passwords pass through ordinary strings anyway.
    gcry_control(GCRYCTL_DISABLE_SECMEM, 0);
    gcry_control(GCRYCTL_INITIALIZATION_FINISHED, 0);
    return true;
  }();
  if (!ready) throw Error(ErrorNumber::Unexpected, "libgcrypt is older than 1.10");
}

}  // namespace mindloft::platform
