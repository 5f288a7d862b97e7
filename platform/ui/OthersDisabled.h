#pragma once

#include <wx/utils.h>

#include <memory>

namespace mindloft::platform {

/// Disables all windows of the program but one as long as this lives. Afterwards each has the keyboard where
/// it had it: some desktops take it from a control that is disabled, and never give it back.
class OthersDisabled {
 public:
  explicit OthersDisabled(wxWindow* exception);
  ~OthersDisabled();
  OthersDisabled(const OthersDisabled&) = delete;
  OthersDisabled& operator=(const OthersDisabled&) = delete;

 private:
  class KeptFocus;
  /// Gives the focus back when the windows are enabled again: it goes after the other.
  std::unique_ptr<KeptFocus> focus_;
  std::unique_ptr<wxWindowDisabler> disabler_;
};

}  // namespace mindloft::platform
