#pragma once

#include <wx/richtext/richtextbuffer.h>

#include "core/forms/Form.h"

class wxChoice;
class wxSpinCtrlDouble;

namespace mindloft {

/// Alignment, indents and spacing of paragraphs.
class frmRichParagraph : public FormDialog {
 public:
  explicit frmRichParagraph(wxWindow* parent);

  /// Shows `format` modally; false when the user cancelled, else it is what was chosen.
  bool Ask(wxRichTextAttr& format);

 private:
  void ShowFormat(const wxRichTextAttr& format);
  wxRichTextAttr Chosen() const;

  wxChoice* cboAlignment = nullptr;
  wxSpinCtrlDouble* spnLeft = nullptr;
  wxSpinCtrlDouble* spnRight = nullptr;
  wxSpinCtrlDouble* spnFirst = nullptr;
  wxSpinCtrlDouble* spnBefore = nullptr;
  wxSpinCtrlDouble* spnAfter = nullptr;
  wxChoice* cboSpacing = nullptr;
};

}  // namespace mindloft
