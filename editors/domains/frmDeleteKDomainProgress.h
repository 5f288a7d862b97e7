#pragma once

#include <wx/evtloop.h>

#include <cstdint>
#include <memory>

#include "core/forms/Form.h"
#include "platform/ui/OthersDisabled.h"

class wxButton;
class wxGauge;
class wxStaticText;

namespace mindloft {

/// Shows how far the deletion of a domain, or another long change, is, and lets the user cancel it. The
/// change runs in slices between its reports, each of which lets the windows live for a moment.
class frmDeleteKDomainProgress : public FormDialog {
 public:
  /// Shows the window and disables all others as long as it lives.
  frmDeleteKDomainProgress(wxWindow* owner, const wxString& caption);
  ~frmDeleteKDomainProgress() override;

  /// Shows the rows done of all (0: not known) and handles what the user does meanwhile. False: the change
  /// is to be cancelled.
  bool Report(std::int64_t done, std::int64_t total);

 private:
  void cmdCancel_Click();
  void ShowRows(std::int64_t done, std::int64_t total);

  wxStaticText* lblRows = nullptr;
  wxGauge* prgRows = nullptr;
  wxButton* cmdCancel = nullptr;
  std::unique_ptr<wxEventLoopBase> ownLoop_;
  std::unique_ptr<wxEventLoopActivator> activeLoop_;
  std::unique_ptr<platform::OthersDisabled> others_;
  std::int64_t shownAt_ = 0;  ///< milliseconds
  bool cancelled_ = false;
};

}  // namespace mindloft
