#include "editors/domains/frmDeleteKDomainProgress.h"

#include <wx/button.h>
#include <wx/gauge.h>
#include <wx/stattext.h>

#include <algorithm>

#include "backend/tessaline/GroupedNumber.h"
#include "backend/tessaline/Services.h"
#include "core/ErrorHandling.h"
#include "platform/Clock.h"

namespace mindloft {
namespace {

constexpr int kRowsDone = 61712;  ///< %1 of %2
constexpr int kCancelling = 61713;
/// Parts of the whole that the bar can show.
constexpr int kRange = 1000;
/// Between two pictures: smooth for the eye and no cost for the change.
constexpr std::int64_t kPictureMilliseconds = 25;

}  // namespace

frmDeleteKDomainProgress::frmDeleteKDomainProgress(wxWindow* owner, const wxString& caption)
    : FormDialog(owner, "frmDeleteKDomainProgress") {
  auto* what = Find<wxStaticText>("lblWhat");
  lblRows = Find<wxStaticText>("lblRows");
  prgRows = Find<wxGauge>("prgRows");
  cmdCancel = Find<wxButton>("cmdCancel");
  SetEscapeId(cmdCancel->GetId());
  prgRows->SetRange(kRange);
  LoadInfoOnForm();
  what->SetLabelText(caption);
  what->SetToolTip(caption);
  cmdCancel->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdCancel_Click(); });
  Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
    event.Veto();
    cmdCancel_Click();
  });
  CentreOnParent();
  if (!wxEventLoopBase::GetActive()) {
    // At start nothing has handled events yet.
    ownLoop_ = std::make_unique<wxGUIEventLoop>();
    activeLoop_ = std::make_unique<wxEventLoopActivator>(ownLoop_.get());
  }
  others_ = std::make_unique<platform::OthersDisabled>(this);
  wxDialog::Show();
  cmdCancel->SetFocus();
}

frmDeleteKDomainProgress::~frmDeleteKDomainProgress() {
  // The owner must be able to take the focus when this window goes.
  others_.reset();
  Hide();
}

bool frmDeleteKDomainProgress::Report(std::int64_t done, std::int64_t total) try {
  const auto now = platform::MonotonicMilliseconds();
  if (shownAt_ != 0 && done != total && now - shownAt_ < kPictureMilliseconds) return !cancelled_;
  shownAt_ = now;
  ShowRows(done, total);
  if (auto* loop = wxEventLoopBase::GetActive()) loop->Yield(true);
  return !cancelled_;
} catch (...) {
  mindloft::Raise("frmDeleteKDomainProgress", "Report");
}

void frmDeleteKDomainProgress::ShowRows(std::int64_t done, std::int64_t total) {
  if (cancelled_) return;
  if (total <= 0) {
    prgRows->Pulse();
    return;
  }
  prgRows->SetValue(static_cast<int>(std::clamp<std::int64_t>(done * kRange / total, 0, kRange)));
  lblRows->SetLabelText(
      GetResource().GetFormatString(kRowsDone, {GroupedNumber(done), GroupedNumber(total)}));
}

void frmDeleteKDomainProgress::cmdCancel_Click() try {
  if (cancelled_) return;
  cancelled_ = true;
  cmdCancel->Disable();
  lblRows->SetLabelText(GetResource().GetString(kCancelling));
} catch (...) {
  ShowError("frmDeleteKDomainProgress", "cmdCancel_Click");
}

}  // namespace mindloft
