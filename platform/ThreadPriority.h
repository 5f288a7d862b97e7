#pragma once

namespace mindloft::platform {

/// Makes the calling thread give way to others where they compete for a processor. It keeps a share, so that
/// whoever waits for its result is not held up for long by other programs.
void GiveWay();

}  // namespace mindloft::platform
