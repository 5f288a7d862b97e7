#pragma once

#include <vector>

class wxWindow;

namespace mindloft::bench {

/// Prints figures beside their targets and remembers whether all of them hold.
class Figures {
 public:
  void Line(const char* what, double milliseconds, double limit);
  bool AllHold() const { return allHold_; }

 private:
  bool allHold_ = true;
};

double Median(std::vector<double> values);

/// Does what a click on the button of that name does.
void Press(const wxWindow& form, const char* name);

}  // namespace mindloft::bench
