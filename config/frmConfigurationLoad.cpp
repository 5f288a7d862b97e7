#include <wx/arrstr.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/radiobut.h>

#include <vector>

#include "backend/tessaline/Services.h"
#include "config/UrlList.h"
#include "config/frmConfiguration.h"
#include "controls/numbers/UserTextNumber.h"
#include "controls/texts/UseTextBox.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"

namespace mindloft {
namespace {

using Tessaline::Setting;

constexpr int kWebMode = 2;

/// A damaged setting counts as 0: nobody may be locked out of the form in which it can be mended.
int IntegerSetting(Setting index, bool machineDefault = false) {
  try {
    return GetConvert().ToInteger(GetResource().GetSetting(index, machineDefault));
  } catch (...) {
    ReportOnly("frmConfiguration", "Form_Load");
    return 0;
  }
}

}  // namespace

void frmConfiguration::Form_Load() try {
  LoadInfoOnForm();
  language_ = GetRefresh()->OnNotifyLanguage([this] { Refresh_NotifyLanguage(); });
  LoadSettings();
  DisplayLanguages();
  ChkProx_ValueChanged();
  const bool web = IntegerSetting(Setting::ConnectMode) == kWebMode;
  OptWeb->SetValue(web);
  OptLan->SetValue(!web);
  if (web)
    OptWeb_Click();
  else
    OptLan_Click();
  LoadAddress();
  Changed = false;
  LanguageChanged = false;
  SetButtonStatus();
  (web ? OptWeb : OptLan)->SetFocus();
  CentreOnParent();
} catch (...) {
  mindloft::Raise("frmConfiguration", "Form_Load");
}

void frmConfiguration::LoadSettings() {
  const auto& resource = GetResource();
  txtConfigurationServer->SetText(resource.GetSetting(Setting::ConfigurationServer, true));
  const wxString port = resource.GetSetting(Setting::ConfigurationPort, true);
  txtPort->SetText(port.empty() ? wxString("10000") : port);
  const wxString timeout = resource.GetSetting(Setting::WebTimeout);
  txtFTPServerName->SetText(GetStringHelper().IsBlank(timeout) ? wxString("120") : timeout);
  txtFTPUserName->SetText(resource.GetSetting(Setting::ProxyUser, true));
  txtFTPPassWord->SetText(resource.GetSetting(Setting::ProxyPassword, true));
  cmbAddress->ChangeValue(resource.GetSetting(Setting::WebServerURL, true));
  ChkProx->SetValue(IntegerSetting(Setting::ProxyEnabled) != 0);
  TxtProxIP->SetText(resource.GetSetting(Setting::ProxyIP, true));
  TxtProxPort->SetText(resource.GetSetting(Setting::ProxyPort, true));
  chkSecurityMode->SetValue(IntegerSetting(Setting::SecureChannel, true) != 0);
}

// The language configuration is the authority on the current language: the setting only follows it.
void frmConfiguration::DisplayLanguages() try {
  auto& resource = GetResource();
  const wxArrayString names = wxSplit(resource.GetLanguageValue("Set_Display"), ';', '\0');
  const wxArrayString codes = wxSplit(resource.GetLanguageValue("Set_Value"), ';', '\0');
  for (std::size_t i = 0; i < names.size() && i < codes.size(); ++i) {
    cboLanguage->Append(names[i], wxUIntToPtr(static_cast<wxUIntPtr>(GetConvert().ToLong(codes[i]))));
  }
  resource.SetSetting(Setting::CurrentLanguage, resource.GetLanguageValue("CurrentLangue"));
  const auto current = GetConvert().ToLong(resource.GetSetting(Setting::CurrentLanguage));
  for (unsigned int i = 0; i < cboLanguage->GetCount(); ++i) {
    if (wxPtrToUInt(cboLanguage->GetClientData(i)) == static_cast<wxUIntPtr>(current)) {
      cboLanguage->SetSelection(static_cast<int>(i));
    }
  }
  if (cboLanguage->GetSelection() == wxNOT_FOUND && !cboLanguage->IsEmpty()) cboLanguage->SetSelection(0);
} catch (...) {
  mindloft::Raise("frmConfiguration", "DisplayLanguages");
}

void frmConfiguration::LoadAddress() try {
  wxArrayString urls;
  for (const auto& known : ReadUrlList()) urls.push_back(known.url);
  AddAddresses(urls);
} catch (...) {
  mindloft::Raise("frmConfiguration", "LoadAddress");
}

void frmConfiguration::AddAddresses(const wxArrayString& urls) {
  if (urls.empty()) return;
  std::vector<void*> numbers;
  numbers.reserve(urls.size());
  // They only tell the entries apart.
  for (std::size_t i = 0; i < urls.size(); ++i) {
    numbers.push_back(wxUIntToPtr(static_cast<wxUIntPtr>(CreateId())));
  }
  cmbAddress->Append(urls, numbers.data());
}

}  // namespace mindloft
