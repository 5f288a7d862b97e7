#pragma once

#include "controls/richtext/EditFormat.h"
#include "core/forms/Form.h"

class wxChoice;
class wxSpinCtrl;

namespace mindloft {

/// What stands before the paragraphs of a list.
struct ListFormat {
  BulletKind kind = BulletKind::None;
  int first = 1;
};

/// Bullets or numbers of paragraphs.
class frmRichList : public FormDialog {
 public:
  explicit frmRichList(wxWindow* parent);

  /// Shows `format` modally; false when the user cancelled, else it is what was chosen.
  bool Ask(ListFormat& format);

 private:
  void ShowFormat(const ListFormat& format);
  ListFormat Chosen() const;
  void EnableStart();

  wxChoice* cboKind = nullptr;
  wxSpinCtrl* spnStart = nullptr;
};

}  // namespace mindloft
