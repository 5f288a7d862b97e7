#include "tests/support/gui/ToolkitMessages.h"

namespace mindloft::test {

// The common controls tell nothing.
void FailOnDesktopMessages() {}

}  // namespace mindloft::test
