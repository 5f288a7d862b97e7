#pragma once

namespace mindloft::test {

/// From now on each error and assertion of the toolkit, and each warning and critical message of the
/// desktop's own, fails the test that runs: a layout with too little room or a call on a dead window is told
/// in no other way, and a box that nobody closes would stop the tests. Once per process.
void FailOnToolkitMessages();

/// The desktop's part of it.
void FailOnDesktopMessages();

}  // namespace mindloft::test
