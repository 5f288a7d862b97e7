#pragma once

#include <functional>
#include <optional>

#include "backend/corvane/StyleFormat.h"

class wxCheckBox;
class wxChoice;
class wxColourPickerCtrl;
class wxComboBox;

namespace mindloft {

class FormDialog;
class UseMultiLineTextBox;
class UserTextNumber;

/// The controls of a form in which a style's format is set.
class StyleControls {
 public:
  /// The form holds the controls and must outlive this. `changed` is called when the user changes one.
  StyleControls(const FormDialog& form, const std::function<void()>& changed);

  /// Fills what is chosen from in the current language; what is chosen stays so.
  void LoadInfo();
  void Show(const Corvane::StyleFormat& format);
  /// A number that is none, or outside its limits, stays as it was in `former`.
  Corvane::StyleFormat Format(const Corvane::StyleFormat& former) const;
  void Enable(bool enabled);

  /// A box whose text is no number within its limits.
  struct Fault {
    UserTextNumber* box;
    int least, greatest;
  };
  std::optional<Fault> FirstFault() const;

 private:
  void Bind(const std::function<void()>& changed);
  void SetColourStatus(bool enabled);

  wxComboBox* cboFont = nullptr;
  UserTextNumber* txtSize = nullptr;
  wxCheckBox* chkBold = nullptr;
  wxCheckBox* chkItalic = nullptr;
  wxCheckBox* chkUnderline = nullptr;
  wxCheckBox* chkStrikeThrough = nullptr;
  wxCheckBox* chkColour = nullptr;
  wxColourPickerCtrl* clrText = nullptr;
  wxChoice* cboAlignment = nullptr;
  UserTextNumber* txtLeftIndent = nullptr;
  UserTextNumber* txtRightIndent = nullptr;
  UserTextNumber* txtFirstLine = nullptr;
  UserTextNumber* txtSpaceBefore = nullptr;
  UserTextNumber* txtSpaceAfter = nullptr;
  wxCheckBox* chkBackground = nullptr;
  wxColourPickerCtrl* clrBackground = nullptr;
  UseMultiLineTextBox* txtSample = nullptr;
  bool enabled_ = true;
};

}  // namespace mindloft
