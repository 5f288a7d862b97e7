#pragma once

#include <functional>
#include <set>

#include "core/Refresh.h"
#include "core/forms/Form.h"

class wxBookCtrlBase;
class wxButton;

namespace mindloft {

class Error;

/// What all property sheets share: pages that are shown one at a time and filled when the user first comes to
/// them, `cmdOK`, `cmdApply` and `cmdCancel`, the question before changes are lost, and the way out of a
/// conflict with a change that somebody else has made meanwhile.
///
/// A sheet keeps its object and every change; only Apply and OK write. Its own OpenWindow keeps the object,
/// fills the controls and calls Open.
class PropertySheet : public FormDialog {
 public:
  /// Whether anything has been stored since the sheet was opened.
  bool HasSaved() const { return hasSaved_; }
  void LoadInfoOnForm() override;

 protected:
  /// `formName` is that of the XRC, of the captions and in error reports; `tabs` is its notebook, empty for
  /// a sheet of one page. The sheet's constructor ends with LoadInfoOnForm.
  PropertySheet(wxWindow* parent, const char* formName, const char* tabs);

  // What a sheet is made of. Failures of the procedures are shown under their name.

  /// Sets the enabled and locked state of every control; the only place that does.
  virtual void SetButtonStatus() = 0;
  /// Whether closing would lose something.
  virtual bool HasChanges() const = 0;
  /// Stores what has been changed and stays open.
  virtual void cmdApply_Click() = 0;
  /// Stores and ends with CloseSheet(wxID_OK).
  virtual void CmdOK_Click() = 0;
  /// Ends without writing; a sheet that has put something into its object takes that back first.
  virtual void CmdCancel_Click() { CloseSheet(wxID_CANCEL); }
  /// Fills a page at the user's first visit.
  virtual void FillPage(int page) { static_cast<void>(page); }
  /// The object was changed elsewhere (Error Conflict): brings both changes together, usually by
  /// ResolveConflict, and shows the result. True: the command is carried out again; false: nothing is.
  virtual bool MergeConflict(const Error& conflict) = 0;
  /// The title of the sheet; called whenever the captions are loaded. See SetCaption.
  virtual void ShowCaption() {}

  /// Selects the first page and shows the sheet modally; wxID_OK or wxID_CANCEL.
  int Open();
  /// Brings a page to the front, as a click on its tab does.
  void SelectPage(int page);
  /// Whether the page has been filled.
  bool IsFilled(int page) const { return filled_.count(page) > 0; }
  /// The page is filled anew at the next visit, and at once when it is in front.
  void FillAgain(int page);
  /// The sheet takes its captions anew whenever the language is switched.
  void FollowLanguage();
  /// "New user", or "Properties: name".
  void SetCaption(bool isNew, int newText, const wxString& name);
  void CloseSheet(int result);
  void SetSaved() { hasSaved_ = true; }
  /// Runs the event procedure of a control; an error in it is shown as one of that procedure.
  template <typename Procedure>
  void RunEvent(const char* procedureName, Procedure procedure) {
    if (loading_.Active()) return;
    RunGuarded(procedureName, procedure);
  }

  /// Runs a command that stores, as Apply and OK do: until it succeeds, fails, or the user goes back from a
  /// conflict.
  void RunSaving(const char* procedureName, const std::function<void()>& procedure) noexcept;

  wxButton* cmdOK = nullptr;
  wxButton* cmdApply = nullptr;
  wxButton* cmdCancel = nullptr;

 private:
  void BindHandlers();
  void RunGuarded(const char* procedureName, const std::function<void()>& procedure) noexcept;
  void Refresh_NotifyLanguage();
  void ShowPage(int page);
  void Form_QueryUnload(wxCloseEvent& event);

  const char* className_;
  wxBookCtrlBase* tabs_ = nullptr;
  std::set<int> filled_;
  Refresh::Subscription language_;
  bool hasSaved_ = false;
};

}  // namespace mindloft
