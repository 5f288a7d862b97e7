#pragma once

#include <wx/string.h>

#include <functional>

class wxButton;
class wxCheckBox;
class wxStaticText;
class wxWindow;

namespace mindloft {

class UseTextBox;

/// The two boxes of a new password, with what helps to fill them in: whether it is long and strong enough, a
/// hint at Caps Lock, a generator, and a look at the password and a copy of it when the user asks for them.
class PasswordBoxes {
 public:
  /// The form must hold `txtPwd`, `txtCfmPwd`, `lblStrength`, `lblCapsLock`, `chkShowPwd`, `cmdGenerate` and
  /// `cmdCopyPwd`. `className` is the form's in error reports; `userName` gives the present login name.
  PasswordBoxes(wxWindow& form, const char* className, std::function<wxString()> userName);

  std::function<void()> changed;  ///< one of the boxes was edited, by hand or by the generator

  wxString Text() const;
  bool AreEqual() const;
  bool AreEmpty() const;
  void Focus() const;
  void FocusConfirmation() const;
  /// Empties both boxes without an event and hides what was shown; `done` tells that the password is set.
  void Clear(bool done);
  void SetLocked(bool locked);
  void ShowHints();

 private:
  void Box_Change();
  void chkShowPwd_Click();
  void cmdGenerate_Click();
  void cmdCopyPwd_Click();
  void ShowCapsLock();
  void Put(const wxString& text);
  wxString Hint() const;

  wxWindow& form_;
  const char* className_;
  std::function<wxString()> userName_;
  UseTextBox* txtPwd;
  UseTextBox* txtCfmPwd;
  wxStaticText* lblStrength;
  wxStaticText* lblCapsLock;
  wxCheckBox* chkShowPwd;
  wxButton* cmdGenerate;
  wxButton* cmdCopyPwd;
  wxString mask_;
  bool locked_ = false;
  bool done_ = false;
  bool putting_ = false;
};

}  // namespace mindloft
