#include "config/frmConfiguration.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/panel.h>
#include <wx/radiobut.h>

#include "backend/tessaline/Services.h"
#include "config/frmURL.h"
#include "controls/RegisterControls.h"
#include "controls/numbers/UserTextNumber.h"
#include "controls/texts/UseTextBox.h"
#include "core/ErrorHandling.h"
#include "platform/Unicode.h"
#include "platform/ui/ComboList.h"

namespace mindloft {
namespace {

constexpr ControlColour kWhite{0xFFFFFF};

}  // namespace

frmConfiguration::frmConfiguration(wxWindow* parent) : FormDialog(WithControls(parent), "frmConfiguration") {
  FindControls();
  SetButtons("cmdOk", "cmdCancel");
  BindHandlers();
  Form_Load();
}

void frmConfiguration::FindControls() {
  OptLan = Find<wxRadioButton>("OptLan");
  OptWeb = Find<wxRadioButton>("OptWeb");
  picLan = Find<wxPanel>("picLan");
  txtConfigurationServer = Find<UseTextBox>("txtConfigurationServer");
  txtPort = Find<UserTextNumber>("txtPort");
  picWeb = Find<wxPanel>("picWeb");
  cmbAddress = Find<wxComboBox>("cmbAddress");
  platform::DropDownAsList(*cmbAddress);
  txtFTPServerName = Find<UserTextNumber>("txtFTPServerName");
  chkSecurityMode = Find<wxCheckBox>("chkSecurityMode");
  ChkProx = Find<wxCheckBox>("ChkProx");
  TxtProxIP = Find<UseTextBox>("TxtProxIP");
  TxtProxPort = Find<UseTextBox>("TxtProxPort");
  txtFTPUserName = Find<UseTextBox>("txtFTPUserName");
  txtFTPPassWord = Find<UseTextBox>("txtFTPPassWord");
  cboLanguage = Find<wxChoice>("cboLanguage");
  cmdOk = Find<wxButton>("cmdOk");
  cmdApply = Find<wxButton>("cmdApply");
}

template <typename Box>
void frmConfiguration::BindChange(Box* box, const char* procedure) {
  box->Change = [this, procedure] {
    try {
      SetChanged();
    } catch (...) {
      ShowError("frmConfiguration", procedure);
    }
  };
}

/// Addresses and ports that are typed by an East Asian input method come out as plain ASCII.
void frmConfiguration::BindNarrowTyping(UseTextBox* box) {
  box->KeyPress = [](int& keyAscii) {
    if (keyAscii > 0) keyAscii = static_cast<int>(platform::NarrowForm(static_cast<char32_t>(keyAscii)));
  };
}

void frmConfiguration::BindHandlers() {
  OptLan->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { OptLan_Click(); });
  OptWeb->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { OptWeb_Click(); });
  ChkProx->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { ChkProx_Click(); });
  chkSecurityMode->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { chkSecurityMode_Click(); });
  cboLanguage->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboLanguage_Click(); });
  cmbAddress->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { cmbAddress_Change(); });
  cmbAddress->Bind(wxEVT_COMBOBOX, [this](wxCommandEvent&) { cmbAddress_Click(); });
  Find<wxButton>("cmdAddress")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdAddress_Click(); });
  cmdApply->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdApply_Click(); });
  cmdOk->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CmdOK_Click(); });
  Find<wxButton>("cmdCancel")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CmdCancel_Click(); });
  BindChange(txtConfigurationServer, "txtConfigurationServer_Change");
  BindChange(txtPort, "txtPort_Change");
  BindChange(txtFTPServerName, "txtFTPServerName_Change");
  BindChange(txtFTPUserName, "txtFTPUserName_Change");
  BindChange(txtFTPPassWord, "txtFTPPassWord_Change");
  BindChange(TxtProxIP, "TxtProxIP_Change");
  BindChange(TxtProxPort, "TxtProxPort_Change");
  for (auto* box : {txtConfigurationServer, TxtProxIP, TxtProxPort}) BindNarrowTyping(box);
}

void frmConfiguration::LoadInfoOnForm() try {
  // The form keeps its size when the mode changes: either frame gets the room of the larger one.
  for (auto* frame : {picLan, picWeb}) frame->SetMinSize(wxDefaultSize);
  FormDialog::LoadInfoOnForm();
  // An address reads from left to right in every language.
  cmbAddress->SetLayoutDirection(wxLayout_LeftToRight);
  wxSize room = picLan->GetBestSize();
  room.IncTo(picWeb->GetBestSize());
  for (auto* frame : {picLan, picWeb}) frame->SetMinSize(room);
  FitToContents();
} catch (...) {
  mindloft::Raise("frmConfiguration", "LoadInfoOnForm");
}

void frmConfiguration::OptLan_Click() try { ShowFrame(false); } catch (...) {
  ShowError("frmConfiguration", "OptLan_Click");
}

void frmConfiguration::OptWeb_Click() try { ShowFrame(true); } catch (...) {
  ShowError("frmConfiguration", "OptWeb_Click");
}

void frmConfiguration::ShowFrame(bool web) {
  picLan->Enable(!web);
  picLan->Show(!web);
  picWeb->Enable(web);
  picWeb->Show(web);
  Layout();
  SetChanged();
}

void frmConfiguration::ChkProx_Click() try {
  ChkProx_ValueChanged();
  SetChanged();
} catch (...) {
  ShowError("frmConfiguration", "ChkProx_Click");
}

void frmConfiguration::ChkProx_ValueChanged() try {
  const bool enabled = ChkProx->GetValue();
  for (auto* box : {TxtProxIP, TxtProxPort, txtFTPUserName, txtFTPPassWord}) {
    box->SetEnabled(enabled);
    box->SetBackColor(enabled ? kWhite : kButtonFaceColour);
  }
} catch (...) {
  mindloft::Raise("frmConfiguration", "ChkProx_ValueChanged");
}

void frmConfiguration::chkSecurityMode_Click() try { SetChanged(); } catch (...) {
  ShowError("frmConfiguration", "chkSecurityMode_Click");
}

void frmConfiguration::cboLanguage_Click() try {
  LanguageChanged = true;
  SetChanged();
} catch (...) {
  ShowError("frmConfiguration", "cboLanguage_Click");
}

void frmConfiguration::cmbAddress_Change() try { SetChanged(); } catch (...) {
  ShowError("frmConfiguration", "cmbAddress_Change");
}

void frmConfiguration::cmbAddress_Click() try { SetChanged(); } catch (...) {
  ShowError("frmConfiguration", "cmbAddress_Click");
}

void frmConfiguration::cmdAddress_Click() try {
  frmURL(this, frmURL::Purpose::ChooseUrl).ShowModal();
  const wxString before = cmbAddress->GetValue();
  const wxString url = GetResource().GetSetting(Tessaline::Setting::WebServerURL, true);
  {
    const LoadingGuard::Lock lock(loading_);
    cmbAddress->Clear();
    cmbAddress->ChangeValue(url);
    LoadAddress();
  }
  if (url != before) cmbAddress_Change();
} catch (...) {
  ShowError("frmConfiguration", "cmdAddress_Click");
}

void frmConfiguration::cmdApply_Click() try {
  SetRegInfo();
  cboLanguage->Clear();
  DisplayLanguages();
  Changed = false;
  SetButtonStatus();
  cmdOk->SetFocus();
} catch (...) {
  ShowError("frmConfiguration", "cmdApply_Click");
}

void frmConfiguration::CmdOK_Click() try {
  SetRegInfo();
  EndModal(wxID_OK);
} catch (...) {
  ShowError("frmConfiguration", "CmdOK_Click");
}

void frmConfiguration::CmdCancel_Click() try { EndModal(wxID_CANCEL); } catch (...) {
  ShowError("frmConfiguration", "CmdCancel_Click");
}

void frmConfiguration::SetChanged() {
  if (loading_.Active()) return;
  Changed = true;
  SetButtonStatus();
}

void frmConfiguration::SetButtonStatus() {
  cmdApply->Enable(Changed);
}

void frmConfiguration::Refresh_NotifyLanguage() try {
  LoadInfoOnForm();
  // A language that was picked and not yet taken stays picked.
  if (LanguageChanged) return;
  cboLanguage->Clear();
  DisplayLanguages();
} catch (...) {
  ShowError("frmConfiguration", "Refresh_NotifyLanguage");
}

}  // namespace mindloft
