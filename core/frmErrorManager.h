#pragma once

#include <functional>

#include "core/Refresh.h"
#include "core/forms/Form.h"

class wxButton;
class wxPanel;
class wxStaticBitmap;
class wxStaticText;
class wxTextCtrl;

namespace mindloft {

/// Shows one error. The headline is what happened and what to do, in the user's language; below it stand the
/// trail of procedures and, on demand, the details. Its own failures are logged and never shown: they must
/// not come back to the error path.
class frmErrorManager : public FormDialog {
 public:
  explicit frmErrorManager(wxWindow* parent = nullptr);

  /// What the dialog says in the language of the user.
  struct Texts {
    wxString caption;
    wxString headline;
    wxString moreInformation;
  };

  /// The text of the headline; without one the headline is not shown.
  void SetHeadline(const wxString& text);
  /// Where the texts come from when the language is switched while the dialog is open; without that what
  /// Dispaly was given stays.
  void SetTextSource(std::function<Texts()> source);
  /// Shows the dialog modally. `kind` is a value of MessageKind; any other leaves the icon as it is. `flag`
  /// goes to SetPos. `result` is 0 until the dialog has been closed, then wxID_OK.
  void Dispaly(const wxString& caption, const wxString& message, int kind, const wxString& moreInformation,
               bool flag, int& result);
  /// Sizes the message to its text, within bounds, and the dialog to its contents.
  void SetMessageHeight();
  /// Places the panel of details, hidden at first, and the dialog: a system error (`flag`) belongs to no form
  /// and stands in the middle of the screen, another one over the form at work.
  void SetPos(bool flag);
  void LoadInfoOnForm() override;

  /// The picture that is shown: "Critical", "Question", "Exclamation" or "Information".
  const wxString& Picture() const { return picture_; }

 private:
  void Refresh_NotifyLanguage();
  void cmdMoreInfomation_Click();
  void picMoreInfoMation_Resize();
  void txtMessage_GotFocus();
  void CmdOK_Click();
  /// Whether the key was one of the dialog's own.
  bool Form_KeyPress(int keyCode);
  void BindHandlers();
  void SetPicture(int kind);
  void SetMoreInformationCaption();
  void WrapHeadline();

  wxStaticBitmap* Image1;
  wxStaticText* lblHeadline;
  wxTextCtrl* txtMessage;
  wxButton* cmdMoreInfomation;
  wxButton* cmdOK;
  wxPanel* picMoreInfoMation;
  wxTextCtrl* txtMoreInfomation;

  std::function<Texts()> textSource_;
  Refresh::Subscription language_;
  wxString headline_;
  wxString picture_;
  bool moreShown_ = false;
};

}  // namespace mindloft
