#pragma once

#include <wx/string.h>

#include <cstdint>

class wxFrame;

namespace mindloft {

/// The status bar: who is logged in, how many rows the list shows, how many are selected.
class MainStatusBar {
 public:
  explicit MainStatusBar(wxFrame& frame) : frame_(frame) {}

  /// Makes the bar anew, in the frame's direction; it stays hidden when it was.
  void Build();
  void ShowUser(const wxString& name);
  /// `filtered`: whether a filter is set, so that the number of all rows is told too.
  void ShowCounts(std::int64_t shown, std::int64_t all, bool filtered, std::int64_t selected);
  bool IsShown() const;
  void Show(bool show);

 private:
  wxFrame& frame_;
};

}  // namespace mindloft
