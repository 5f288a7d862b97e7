#pragma once

#include "core/forms/Form.h"

class wxListBox;

namespace mindloft {

/// The style of paragraphs.
class frmRichStyles : public FormDialog {
 public:
  explicit frmRichStyles(wxWindow* parent);

  /// Shows `format` modally; false when the user cancelled, else it is what was chosen.
  bool Ask(wxString& format);

 private:
  void ShowFormat(const wxString& format);
  wxString Chosen() const;

  wxListBox* lstStyles = nullptr;
};

}  // namespace mindloft
