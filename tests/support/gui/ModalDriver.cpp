#include "tests/support/gui/ModalDriver.h"

#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/msgdlg.h>

#include <algorithm>
#include <exception>

#include "backend/tessaline/Text.h"

namespace mindloft::test {
namespace {

constexpr int longestScript = 30000;  // milliseconds: reached only by a window that hangs

/// Forms and messages have names of their own; the toolkit's dialogs are known by their class.
wxString NameOf(const wxDialog& dialog) {
  wxString name = dialog.GetName();
  bool named = !name.empty() && name != wxDialogNameStr && name != wxMessageBoxCaptionStr;
  return named && name != wxASCII_STR("message") ? name : wxString(dialog.GetClassInfo()->GetClassName());
}

}  // namespace

ModalDriver::ModalDriver() {
  Register();
  watchdog_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { OnTimeout(); });
}

ModalDriver::~ModalDriver() {
  Unregister();
  Verify();
}

void ModalDriver::ExpectForm(const wxString& name, Script script) {
  expected_.push_back({name, 0, std::move(script), {}});
}

void ModalDriver::ExpectMessage(int number, int answer) {
  expected_.push_back({wxString::Format("message %d", number), answer, {}, {}});
}

void ModalDriver::ExpectDialog(const wxString& className, int answer,
                               std::function<void(wxDialog&)> prepare) {
  expected_.push_back({className, answer, {}, std::move(prepare)});
}

void ModalDriver::Verify() {
  for (const auto& expectation : expected_) ADD_FAILURE() << "never shown: " << ToUtf8(expectation.name);
  expected_.clear();
}

int ModalDriver::Enter(wxDialog* dialog) {
  wxString name = NameOf(*dialog);
  if (auto* message = dynamic_cast<wxMessageDialogBase*>(dialog)) lastMessage_ = message->GetMessage();
  if (expected_.empty() || expected_.front().name != name) {
    ADD_FAILURE() << "unexpected modal window: " << ToUtf8(name) << " \"" << ToUtf8(dialog->GetTitle())
                  << "\" " << ToUtf8(lastMessage_)
                  << (expected_.empty() ? "" : "; expected: " + ToUtf8(expected_.front().name));
    return wxID_CANCEL;
  }
  Expectation expectation = std::move(expected_.front());
  expected_.pop_front();
  if (expectation.prepare) expectation.prepare(*dialog);
  if (!expectation.script) return expectation.answer;
  open_.push_back(dialog);
  if (!watchdog_.IsRunning()) watchdog_.StartOnce(longestScript);
  dialog->CallAfter([this, dialog, script = std::move(expectation.script)] { Run(dialog, script); });
  return wxID_NONE;
}

void ModalDriver::Exit(wxDialog* dialog) {
  open_.erase(std::remove(open_.begin(), open_.end(), dialog), open_.end());
  if (open_.empty()) watchdog_.Stop();
}

void ModalDriver::Run(wxDialog* dialog, const Script& script) {
  bool failed = false;
  try {
    User user(*dialog);
    script(user);
  } catch (const std::exception& error) {
    failed = true;
    ADD_FAILURE() << "in " << ToUtf8(NameOf(*dialog)) << ": " << error.what();
  }
  bool stillOpen =
      std::find(open_.begin(), open_.end(), dialog) != open_.end() && dialog->IsModal() && dialog->IsShown();
  if (!stillOpen) return;
  if (!failed) ADD_FAILURE() << "left open: " << ToUtf8(NameOf(*dialog));
  Close(*dialog);
}

void ModalDriver::Close(wxDialog& dialog) {
  if (dialog.IsModal() && dialog.IsShown()) dialog.EndModal(wxID_CANCEL);
}

void ModalDriver::OnTimeout() {
  for (auto open = open_.rbegin(); open != open_.rend(); ++open) {
    ADD_FAILURE() << "timed out: " << ToUtf8(NameOf(**open));
    Close(**open);
  }
}

}  // namespace mindloft::test
