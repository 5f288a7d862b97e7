#pragma once

#include <wx/string.h>
#include <wx/window.h>

#include <cstdint>

class wxListCtrl;

namespace mindloft::test {

// How to write a test of a form
// -----------------------------
// Link `mindloft_tests(room GUI LINK room)`; the program's main is in here. Each test runs inside the
// toolkit's main loop, on real controls, natively and on Windows:
//
//   class UserDetailTest : public PrivateServices {};            // own registry, log and language folder
//
//   TEST_F(UserDetailTest, ApplyNeedsAName) {
//     ModalDriver modal;                                         // answers whatever becomes modal, in order
//     modal.ExpectForm("frmUserDetail", [](User& user) {
//       user.Clear("txtName");
//       EXPECT_FALSE(user.IsEnabled("cmdApply"));
//       user.Type("txtName", "anna");
//       user.Click("cmdOK");
//     });
//     modal.ExpectMessage(53657, wxID_OK);
//     OpenTheForm();
//   }
//
// A window that is not modal: `User user(frame);`, then `frame.Show(); Settle();`. Never wait for a time: use
// WaitFor(condition, what). Errors and assertions of the toolkit fail the test by themselves.

/// A user in front of one form: acts on controls by their names, and only as a person could. An action on a
/// control that is missing, hidden, disabled or locked throws std::runtime_error, which fails the test.
class User {
 public:
  explicit User(wxWindow& form) : form_(form) {}

  // A control made of several windows is named by its own name: the text is typed into the box inside.

  /// Types at the caret of a text or combo box, key by key, so that key filters of the control take part.
  void Type(const char* name, const wxString& text);
  /// Selects all and deletes it.
  void Clear(const char* name);
  /// Presses a button, toggle button or bitmap button, or selects a radio button.
  void Click(const char* name);
  void Check(const char* name, bool checked = true);
  /// Chooses an entry of a choice, combo box or list box by its text.
  void Choose(const char* name, const wxString& entry);
  /// Brings a page of a notebook to the front, by the page's name or position.
  void SelectPage(const char* notebook, int page);
  /// Picks a menu command or tool of a frame by its XRC name (or a number).
  void Command(const char* name);
  void Command(int id);
  /// Presses a key (a character or WXK_...) in the control that has the focus, or in `name`: Enter and Esc
  /// work as in any dialog.
  void Press(int keyCode, int modifiers = 0, const char* name = nullptr);
  /// A row of a list control.
  void SelectRow(const char* name, long row);
  void DoubleClickRow(const char* name, long row);

  /// The text of a box, else the label.
  wxString Read(const char* name) const;
  bool IsChecked(const char* name) const;
  bool IsEnabled(const char* name) const;
  bool IsShown(const char* name) const;
  wxString Title() const;

  wxWindow& Form() const { return form_; }
  /// The control itself, for what a user sees and this class has no word for; throws when there is none of
  /// that type.
  template <typename Control = wxWindow>
  Control& Find(const char* name) const {
    auto* control = dynamic_cast<Control*>(FindWindow(name));
    if (!control) Refuse(name, "is missing or of another type");
    return *control;
  }

 private:
  wxWindow* FindWindow(const char* name) const;
  [[noreturn]] static void Refuse(const char* name, const char* reason);
  /// The control, if a person could use it now.
  template <typename Control = wxWindow>
  Control& Usable(const char* name) const {
    auto& control = Find<Control>(name);
    RefuseUnusable(name, control);
    return control;
  }
  static void RefuseUnusable(const char* name, const wxWindow& control);
  void SendListEvent(wxListCtrl& list, int eventType, long row) const;

  wxWindow& form_;
};

}  // namespace mindloft::test
