#pragma once

namespace mindloft::platform {

/// Makes libgcrypt ready for use; cheap after the first time. Throws Unexpected when the library is too old.
void PrepareCryptoLibrary();

}  // namespace mindloft::platform
