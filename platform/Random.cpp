#include "platform/Random.h"

#include <sodium.h>

#include "platform/CryptoLibrary.h"

namespace mindloft::platform {

std::string RandomBytes(std::size_t count) {
  PrepareCryptoLibrary();
  std::string bytes(count, '\0');
  randombytes_buf(bytes.data(), bytes.size());
  return bytes;
}

}  // namespace mindloft::platform
