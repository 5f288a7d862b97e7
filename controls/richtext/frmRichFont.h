#pragma once

#include <wx/richtext/richtextbuffer.h>

#include "core/forms/Form.h"

class wxCheckBox;
class wxChoice;
class wxColourPickerCtrl;
class wxSpinCtrl;

namespace mindloft {

/// Face, size, colour and effects of characters.
class frmRichFont : public FormDialog {
 public:
  explicit frmRichFont(wxWindow* parent);

  /// Shows `format` modally; false when the user cancelled, else it is what was chosen.
  bool Ask(wxRichTextAttr& format);

 private:
  void ShowFormat(const wxRichTextAttr& format);
  wxRichTextAttr Chosen() const;

  wxChoice* cboFace = nullptr;
  wxSpinCtrl* spnSize = nullptr;
  wxColourPickerCtrl* cpkColour = nullptr;
  wxCheckBox* chkBold = nullptr;
  wxCheckBox* chkItalic = nullptr;
  wxCheckBox* chkUnderline = nullptr;
  wxCheckBox* chkStrike = nullptr;
};

}  // namespace mindloft
