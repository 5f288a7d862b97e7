#pragma once

#include <memory>

#include "editors/PropertySheet.h"

class wxStaticText;

namespace mindloft {

class StyleControls;
class UseTextBox;
class UserPreview;
namespace Corvane {
class Style;
}

/// The property sheet of one style: its name and how its text looks, with a preview that follows every
/// change.
class frmStyleDetail : public PropertySheet {
 public:
  explicit frmStyleDetail(wxWindow* parent);
  ~frmStyleDetail() override;

  /// Shows the sheet modally for a stored or a new style; HasSaved tells whether it was stored.
  void OpenWindow(std::shared_ptr<Corvane::Style> style);
  void LoadInfoOnForm() override;

 protected:
  void SetButtonStatus() override;
  bool HasChanges() const override { return changed_; }
  void cmdApply_Click() override;
  void CmdOK_Click() override;
  void CmdCancel_Click() override;
  bool MergeConflict(const Error& conflict) override;
  void ShowCaption() override;

 private:
  void GetInfo();
  void InfoChanged();
  void ShowPreview();
  /// Whether the name or a number cannot be stored as it is; tells which.
  bool RefuseFaults();
  void PutInfo();
  void SaveInfo();

  std::shared_ptr<Corvane::Style> style_;
  std::unique_ptr<StyleControls> format_;
  bool changed_ = false;
  bool mayChange_ = false;

  UseTextBox* txtName = nullptr;
  UserPreview* usPreview = nullptr;
  wxStaticText* lblFontMissing = nullptr;
};

}  // namespace mindloft
