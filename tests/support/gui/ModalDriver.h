#pragma once

#include <wx/modalhook.h>
#include <wx/string.h>
#include <wx/timer.h>

#include <deque>
#include <functional>
#include <vector>

#include "tests/support/gui/User.h"

namespace mindloft::test {

/// Stands for the user in front of modal windows: what is to come is told beforehand, in order. A window that
/// was not expected, one that never came, one that its script left open and one that hung all fail the test.
///
///   ModalDriver modal;
///   modal.ExpectForm("frmErrorManager", [](User& user) {
///     EXPECT_THAT(user.Read("lblHeadline").utf8_string(), HasSubstr("changed meanwhile"));
///     user.Click("cmdOK");
///   });
///   modal.ExpectMessage(55101, wxID_YES);
///   user.Click("cmdDelete");
///   // leaving the scope checks that both were shown
class ModalDriver : private wxModalDialogHook {
 public:
  using Script = std::function<void(User& user)>;

  ModalDriver();
  /// Fails the test when something expected was not shown.
  ~ModalDriver() override;

  /// A form of our own, by its name. It is shown for real, and the script runs once it is; the script must
  /// close it. Forms that a script opens are expected after it.
  void ExpectForm(const wxString& name, Script script);
  /// A message box, by its number; `answer` is wxID_YES, wxID_NO or wxID_OK. It is not shown.
  void ExpectMessage(int number, int answer);
  /// A dialog of the toolkit, by its class ("wxDirDialog"). It is not shown; `prepare` may put the user's
  /// choice into it before it is answered.
  void ExpectDialog(const wxString& className, int answer, std::function<void(wxDialog&)> prepare = {});
  /// The text of the last message box.
  const wxString& LastMessage() const { return lastMessage_; }
  /// Fails the test when something expected was not shown so far, and forgets it.
  void Verify();

 private:
  struct Expectation {
    wxString name;
    int answer = 0;
    Script script;
    std::function<void(wxDialog&)> prepare;
  };

  int Enter(wxDialog* dialog) override;
  void Exit(wxDialog* dialog) override;
  void Run(wxDialog* dialog, const Script& script);
  void OnTimeout();
  static void Close(wxDialog& dialog);

  std::deque<Expectation> expected_;
  std::vector<wxDialog*> open_;
  wxString lastMessage_;
  wxTimer watchdog_;
};

}  // namespace mindloft::test
