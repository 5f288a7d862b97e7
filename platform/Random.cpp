#include "platform/Random.h"

#include <gcrypt.h>

#include "platform/CryptoLibrary.h"

namespace mindloft::platform {

std::string RandomBytes(std::size_t count) {
  PrepareCryptoLibrary();
  std::string bytes(count, '\0');
  gcry_randomize(bytes.data(), bytes.size(), GCRY_STRONG_RANDOM);
  return bytes;
}

}  // namespace mindloft::platform
