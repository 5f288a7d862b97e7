#pragma once

#include <memory>
#include <vector>

#include "backend/directory/Records.h"
#include "core/Refresh.h"
#include "core/forms/Form.h"

class wxButton;
class wxChoice;

namespace mindloft {

class UserPreview;
namespace Corvane {
class Style;
}

/// Lets the user pick one of the directory's styles, or none, with a preview of it.
class frmStyleSelect : public FormDialog {
 public:
  explicit frmStyleSelect(wxWindow* parent);

  /// Shows the form modally, and returns the style that it holds when it closes: `style`, replaced by each
  /// choice in the list; nothing when it holds none. Whether the user has accepted it, Accepted tells; when
  /// not, that is logged. `offerEmpty`: the list begins with a choice of no style.
  std::shared_ptr<Corvane::Style> Display(const std::shared_ptr<Corvane::Style>& style, bool offerEmpty);
  bool Accepted() const { return accepted_; }
  void LoadInfoOnForm() override;

 private:
  void Refresh_NotifyLanguage();
  /// Fills the list from the styles as they are stored now.
  void BuildList();
  /// Selects the style that the form holds, by its name; the first entry when it holds none.
  void SelectItem();
  void CmbStyle_Click();
  void cmdStyles_Click();
  void cmdOK_Click();
  void CmdCancel_Click();
  void ShowChosen();
  /// Fills the list anew after the styles have changed; the style that the form holds stays, under the name
  /// that it has now.
  void RebuildList();

  std::shared_ptr<Corvane::Style> style_;
  bool offerEmpty_ = false;
  bool accepted_ = false;
  std::vector<ObjectId> styles_;  ///< of the entries of CmbStyle; 0: the choice of none
  Refresh::Subscription language_;

  wxChoice* CmbStyle = nullptr;
  UserPreview* usPreview = nullptr;
  wxButton* cmdStyles = nullptr;
};

}  // namespace mindloft
