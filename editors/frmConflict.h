#pragma once

#include <vector>

#include "core/forms/Form.h"

class wxPanel;
class wxStaticText;

namespace mindloft {

class Error;

/// A field that two users have changed at the same time.
struct FieldDifference {
  wxString label, mine, theirs;
};

/// What is to become of such fields.
enum class ConflictChoice { Mine, Theirs, GoBack };

/// Says who has changed an object meanwhile and when, and lets the user decide about the fields that both
/// have changed.
class frmConflict : public FormDialog {
 public:
  /// `conflict` is the back end's: object, who and when are its parameters.
  frmConflict(wxWindow* parent, const Error& conflict, const std::vector<FieldDifference>& differences);
  /// Shows the dialog modally.
  ConflictChoice Ask();

 private:
  void ShowDifferences(const std::vector<FieldDifference>& differences);
  void Choose(ConflictChoice choice);

  wxStaticText* lblWhat = nullptr;
  wxPanel* pnlFields = nullptr;
  ConflictChoice choice_ = ConflictChoice::GoBack;
};

}  // namespace mindloft
