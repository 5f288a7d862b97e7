#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

namespace mindloft::platform {

/// Numbers for one printer's papers. The print server names papers ("iso_a4_210x297mm") and does not number
/// them; a paper's number is made from its name alone, so that it is the same on every printer and computer.
class PaperNumbers {
 public:
  /// The paper's number. Where two of a printer's papers would have the same, the later one gets the next
  /// that is free.
  std::uint16_t Give(const std::string& name);
  /// The number that was given; 0 for another paper.
  std::uint16_t Find(const std::string& name) const;

 private:
  std::map<std::string, std::uint16_t> byName_;
  std::set<std::uint16_t> taken_;
};

}  // namespace mindloft::platform
