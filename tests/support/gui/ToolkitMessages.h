#pragma once

namespace mindloft::test {

/// From now on each warning and critical message of the desktop's toolkit fails the test that runs: a layout
/// with too little room or a call on a dead window is told in no other way. Once per process.
void FailOnToolkitMessages();

}  // namespace mindloft::test
