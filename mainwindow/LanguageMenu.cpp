#include "mainwindow/LanguageMenu.h"

#include "backend/tessaline/Services.h"
#include "core/ErrorHandling.h"
#include "core/LanguageImport.h"
#include "core/Refresh.h"
#include "mainwindow/CommandSet.h"
#include "mainwindow/Texts.h"

namespace mindloft {

int LanguageMenu::ItemId(int languageCode) {
  return CommandSet::Id(wxString::Format("mnuViewLanguage%d", languageCode));
}

int LanguageMenu::LanguageOf(int itemId) {
  for (const int code : GetResource().Languages())
    if (ItemId(code) == itemId) return code;
  return 0;
}

void LanguageMenu::Switch(int languageCode) try {
  if (languageCode == GetResource().CurrentLanguage()) return;
  if (const wxString file = LanguageRegistryFile(languageCode); !file.empty()) {
    ImportLanguage(languageCode, file);
    return;
  }
  if (!GetResource().SwitchLanguage(languageCode)) {
    GetMessenger().ShowMessage(texts::kLanguageFailed, {GetResource().LanguageName(languageCode)});
    return;
  }
  GetResource().KeepLanguage();
  GetRefresh()->NotifyLanguage();
} catch (...) {
  Raise("frmSysAdmin", "SwitchLanguage");
}

}  // namespace mindloft
