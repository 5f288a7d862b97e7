#include <wx/arrstr.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/radiobut.h>

#include "backend/tessaline/Services.h"
#include "config/UrlList.h"
#include "config/frmConfiguration.h"
#include "controls/numbers/UserTextNumber.h"
#include "controls/texts/UseTextBox.h"
#include "core/ErrorHandling.h"
#include "core/LanguageImport.h"
#include "core/modShare.h"

namespace mindloft {
namespace {

using Tessaline::Setting;

wxString Switch(const wxCheckBox* box) {
  return box->GetValue() ? "1" : "0";
}

}  // namespace

// Nothing is validated; the settings of the other mode stay as they are stored.
void frmConfiguration::SetRegInfo() try {
  auto& resource = GetResource();
  const bool web = OptWeb->GetValue();
  resource.SetSetting(Setting::ConnectMode, web ? "2" : "1");
  if (!web) {
    resource.SetSetting(Setting::ConfigurationServer, txtConfigurationServer->Text());
    resource.SetSetting(Setting::ConfigurationPort, txtPort->Text());
  } else {
    resource.SetSetting(Setting::WebTimeout, txtFTPServerName->Text());
    resource.SetSetting(Setting::ProxyUser, txtFTPUserName->Text());
    resource.SetSetting(Setting::ProxyPassword, txtFTPPassWord->Text());
    resource.SetSetting(Setting::WebServerURL, cmbAddress->GetValue());
    resource.SetSetting(Setting::ProxyEnabled, Switch(ChkProx));
    resource.SetSetting(Setting::ProxyIP, TxtProxIP->Text());
    resource.SetSetting(Setting::ProxyPort, TxtProxPort->Text());
    resource.SetSetting(Setting::SecureChannel, Switch(chkSecurityMode));
  }
  SetUpLanguage();
  Address();
} catch (...) {
  mindloft::Raise("frmConfiguration", "SetRegInfo");
}

int frmConfiguration::SelectedLanguage() const {
  const int selected = cboLanguage->GetSelection();
  if (selected == wxNOT_FOUND) return 0;
  return static_cast<int>(wxPtrToUInt(cboLanguage->GetClientData(static_cast<unsigned int>(selected))));
}

void frmConfiguration::SetUpLanguage() try {
  if (!LanguageChanged) return;
  const int code = SelectedLanguage();
  const wxString path = LanguageRegistryFile(code);
  if (path.empty() || !GetUtility().FileExists(path)) return;
  if (!ImportLanguage(code, path)) return;
  GetResource().SetSetting(Setting::CurrentLanguage, wxString::Format("%d", code));
  LoadInfoOnForm();
  LanguageChanged = false;
} catch (...) {
  mindloft::Raise("frmConfiguration", "SetUpLanguage");
}

void frmConfiguration::Address() try {
  const wxString url = TrimmedUrl(cmbAddress->GetValue());
  if (GetStringHelper().IsBlank(url)) return;
  const auto entries = cmbAddress->GetStrings();
  for (const auto& entry : entries) {
    if (entry == url) return;
  }
  WriteUrl({CreateGUID(), url});
  const LoadingGuard::Lock lock(loading_);
  wxArrayString added;
  added.push_back(url);
  AddAddresses(added);
} catch (...) {
  mindloft::Raise("frmConfiguration", "Address");
}

}  // namespace mindloft
