#include "bench/Report.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace mindloft::bench {

double Percentile(std::vector<double> values, double share) {
  auto index =
      std::min(values.size() - 1, static_cast<std::size_t>(share * static_cast<double>(values.size())));
  auto at = values.begin() + static_cast<std::ptrdiff_t>(index);
  std::nth_element(values.begin(), at, values.end());
  return *at;
}

double ResidentMiB() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) return std::stod(line.substr(6)) / 1024;
  }
  return 0;
}

void Report::Line(const std::string& what, double value, const char* unit, const char* relation,
                  double target, bool met) {
  std::printf("%-52s %10.2f %-5s (%s %.2f)  %s\n", what.c_str(), value, unit, relation, target,
              met ? "PASS" : "FAIL");
  std::fflush(stdout);
  passed_ = passed_ && met;
}

void Report::AtMost(const std::string& what, double value, double target, const char* unit) {
  Line(what, value, unit, "at most", target, value <= target);
}

void Report::AtLeast(const std::string& what, double value, double target, const char* unit) {
  Line(what, value, unit, "at least", target, value >= target);
}

void Report::Note(const std::string& what, double value, const char* unit) {
  std::printf("%-52s %10.2f %s\n", what.c_str(), value, unit);
  std::fflush(stdout);
}

}  // namespace mindloft::bench
