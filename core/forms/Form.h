#pragma once

#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/string.h>

class wxXmlResourceHandler;

namespace mindloft {

/// Makes a control of our own known to the forms' XRC. Takes ownership; once per class, before a form that
/// holds the control is loaded.
void RegisterFormHandler(wxXmlResourceHandler* handler);

/// Loads the built-in "forms/<name>.xrc" into `dialog` (two-step construction) in the layout direction of the
/// current language, and throws when the resource has any error: an unknown class, a property of the wrong
/// type, a missing form.
void LoadDialogForm(wxDialog& dialog, wxWindow* parent, const wxString& name);
void LoadFrameForm(wxFrame& frame, wxWindow* parent, const wxString& name);

/// Gives the window and all below it the layout direction of the current language. Lists that the toolkit
/// draws itself stay left to right, for their glyphs would be mirrored, and so do its buttons for colours,
/// which would lose them.
void ApplyLayoutDirection(wxWindow& window);

[[noreturn]] void ThrowMissingControl(const wxWindow& form, const char* name, const char* type);

/// The control of that XRC name, checked: throws when there is none or it is of another type.
template <typename Control>
Control* FindControl(const wxWindow& form, const char* name) {
  auto* control = dynamic_cast<Control*>(wxWindow::FindWindowByName(name, &form));
  if (!control) ThrowMissingControl(form, name, typeid(Control).name());
  return control;
}

/// Makes program-made changes silent: handlers start with `if (loading.Active()) return;`.
class LoadingGuard {
 public:
  bool Active() const { return depth_ > 0; }
  class Lock {
   public:
    explicit Lock(LoadingGuard& guard) : guard_(guard) { ++guard_.depth_; }
    ~Lock() { --guard_.depth_; }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

   private:
    LoadingGuard& guard_;
  };

 private:
  int depth_ = 0;
};

/// What all modal forms share: loading the XRC of the form's name, captions in the current language and their
/// reload through LoadInfoOnForm, the layout direction, default and escape buttons, F1 for help, fitting to
/// its contents.
class FormDialog : public wxDialog {
 public:
  /// Captions are loaded by the derived class through LoadInfoOnForm.
  FormDialog(wxWindow* parent, const wxString& formName);

  /// Sets every caption in the current language and makes the form large enough for them.
  virtual void LoadInfoOnForm();
  int ShowModal() override;
  /// Never in less room than the contents need: what has no room is cut off instead of squeezed.
  bool Layout() override;

 protected:
  /// Makes the form large enough for its contents, after these have changed.
  void FitToContents();
  /// The buttons of Enter and Esc. ShowModal returns wxID_OK or wxID_CANCEL when they close the form.
  void SetButtons(const char* defaultButton, const char* escapeButton);
  template <typename Control>
  Control* Find(const char* name) const {
    return FindControl<Control>(*this, name);
  }

  LoadingGuard loading_;

 private:
  void GrowToContents();

  wxSize grownTo_;  ///< what was asked for last
};

/// What F1 does; set by the application at start.
void SetHelpAction(void (*action)());
/// Binds F1 of a form to the help action.
void BindHelpKey(wxWindow& form);

}  // namespace mindloft
