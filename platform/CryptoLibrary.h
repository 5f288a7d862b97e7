#pragma once

namespace mindloft::platform {

/// Makes libsodium ready for use, on any thread; cheap after the first time. Throws Unexpected where the
/// system has no source of random numbers.
void PrepareCryptoLibrary();

}  // namespace mindloft::platform
