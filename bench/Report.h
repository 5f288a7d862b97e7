#pragma once

#include <chrono>
#include <ctime>
#include <string>
#include <vector>

namespace mindloft::bench {

/// Whether processor time is measured instead of the time that passes: for a machine that does other work at
/// the same time.
inline bool measuresProcessorTime = false;

/// The time now, from some beginning.
inline double NowMilliseconds() {
  if (measuresProcessorTime) return static_cast<double>(std::clock()) * 1000 / CLOCKS_PER_SEC;
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

/// Milliseconds that `work` takes.
template <typename Work>
double Milliseconds(Work work) {
  const auto start = NowMilliseconds();
  work();
  return NowMilliseconds() - start;
}

/// The value that the given share (0 to 1) of the values does not exceed. Not for no values.
double Percentile(std::vector<double> values, double share);

/// Resident memory of this process in MiB; 0 where the system does not tell.
double ResidentMiB();

/// One line for each figure, with its target and whether it was met.
class Report {
 public:
  void AtMost(const std::string& what, double value, double target, const char* unit);
  void AtLeast(const std::string& what, double value, double target, const char* unit);
  /// A figure without a target.
  void Note(const std::string& what, double value, const char* unit);
  bool Passed() const { return passed_; }

 private:
  void Line(const std::string& what, double value, const char* unit, const char* relation, double target,
            bool met);
  bool passed_ = true;
};

}  // namespace mindloft::bench
