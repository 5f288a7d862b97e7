#include "bench/editors/Figures.h"

#include <wx/button.h>

#include <algorithm>
#include <cstdio>

namespace mindloft::bench {

void Figures::Line(const char* what, double milliseconds, double limit) {
  const bool holds = milliseconds <= limit;
  allHold_ = allHold_ && holds;
  std::printf("%-40s %8.2f ms (at most %g) %s\n", what, milliseconds, limit, holds ? "ok" : "MISSED");
  std::fflush(stdout);
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

void Press(const wxWindow& form, const char* name) {
  auto* button = dynamic_cast<wxButton*>(wxWindow::FindWindowByName(name, &form));
  wxCommandEvent event(wxEVT_BUTTON, button->GetId());
  event.SetEventObject(button);
  button->HandleWindowEvent(event);
}

}  // namespace mindloft::bench
