#pragma once

#include <filesystem>
#include <string>

#include "core/forms/Form.h"

class wxButton;
class wxStaticText;
class wxTextCtrl;

namespace mindloft {

/// Makes a new directory file with its first administrator. ShowModal gives wxID_OK once the file exists.
class frmCreateDirectory : public FormDialog {
 public:
  frmCreateDirectory(wxWindow* owner, std::filesystem::path file, const wxString& administratorName);
  ~frmCreateDirectory() override;
  void LoadInfoOnForm() override;

  /// The first administrator, after wxID_OK. The password is overwritten when the form goes.
  const wxString& AdministratorName() const { return name_; }
  const std::string& Password() const { return password_; }

 private:
  void Field_Change(wxCommandEvent& event);
  void cmdOK_Click(wxCommandEvent& event);
  /// Tells what is still missing; OK is enabled when nothing is.
  void SetButtonStatus();
  /// The first thing that is missing, in the fields' order; empty when the form is complete.
  wxString Missing() const;
  void ShowHint(const wxString& text, const wxString& details = {});

  std::filesystem::path file_;
  wxString name_;
  std::string password_;
  wxStaticText* lblPlace = nullptr;
  wxTextCtrl* txtName = nullptr;
  wxTextCtrl* txtPassword = nullptr;
  wxTextCtrl* txtRepeat = nullptr;
  wxStaticText* lblHint = nullptr;
  wxButton* cmdOK = nullptr;
};

}  // namespace mindloft
