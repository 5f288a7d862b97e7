#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/support/ChildProcess.h"

namespace mindloft::test {

/// This test program in a process of its own, doing one of the tasks of Child.cpp instead of tests. Killed
/// when this goes.
class Child {
 public:
  /// ASCII arguments only: the task and what it needs.
  explicit Child(const std::vector<std::string>& arguments);
  /// Lets the main loop work until it has ended; its exit status.
  int Wait();

 private:
  ChildProcess process_;
};

/// Runs the task that the program's arguments name; nothing when they name none.
std::optional<int> RunAsChild(int argc, char** argv);

}  // namespace mindloft::test
