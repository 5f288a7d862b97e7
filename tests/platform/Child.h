#pragma once

#include <optional>
#include <string>
#include <vector>

namespace mindloft::test {

/// This test program in a process of its own, doing one of the tasks of Child.cpp instead of tests.
class Child {
 public:
  /// ASCII arguments only: the task and what it needs.
  explicit Child(const std::vector<std::string>& arguments);
  /// Ends it if it still runs.
  ~Child();
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;
  bool HasEnded() const;
  /// Lets the main loop work until it has ended; its exit status.
  int Wait() const;

 private:
  class Process;
  Process* process_;
  long id_;
};

/// Runs the task that the program's arguments name; nothing when they name none.
std::optional<int> RunAsChild(int argc, char** argv);

}  // namespace mindloft::test
