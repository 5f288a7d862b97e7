#pragma once

#include <memory>

#include "core/Refresh.h"
#include "core/forms/Form.h"

class wxButton;

namespace mindloft {

class UserPreview;
class ctExplorer;
namespace Corvane {
class Style;
}

/// The styles of the directory, with a preview of the selected one: adds, changes and removes them. Each
/// change is stored at once.
class frmStyles : public FormDialog {
 public:
  explicit frmStyles(wxWindow* parent);

  /// Shows the form modally.
  void OpenWindow();
  void LoadInfoOnForm() override;

 private:
  void BindHandlers();
  void Refresh_NotifyLanguage();
  void DisplayStyles();
  void SetButtonStatus();
  /// The selected style as it is stored now; nothing unless one is selected, or when it is gone.
  std::shared_ptr<Corvane::Style> Selected() const;
  void ctStyle_lvSelChange();
  void cmdAdd_Click();
  void cmdProperties_Click();
  void cmdRemove_Click();
  void Edit(const std::shared_ptr<Corvane::Style>& style);
  bool ConfirmRemoval(const Corvane::Style& style);
  /// Runs a command; an error in it is shown, and the list is read anew, since somebody else may have been
  /// faster.
  void RunEvent(const char* procedureName, void (frmStyles::*command)()) noexcept;

  bool mayChange_ = false;
  Refresh::Subscription language_;
  ctExplorer* ctStyle = nullptr;
  UserPreview* usPreview = nullptr;
  wxButton* cmdAdd = nullptr;
  wxButton* cmdProperties = nullptr;
  wxButton* cmdRemove = nullptr;
};

}  // namespace mindloft
