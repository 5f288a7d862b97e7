#pragma once

#include <wx/string.h>

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "backend/tessaline/LanguageFile.h"
#include "backend/tessaline/ProtectedSetting.h"
#include "backend/tessaline/Registry.h"

class wxWindow;

namespace mindloft::Tessaline {

/// Client settings by their index.
enum class Setting : int {
  ConnectMode = 0,
  WebServerURL = 7,
  ProxyEnabled = 8,
  ProxyIP = 9,
  ProxyPort = 10,
  ProxyUser = 11,
  ProxyPassword = 12,
  WebTimeout = 13,
  CurrentLanguage = 14,
  AutoLoginEnabled = 16,
  LoginUserName = 17,
  LoginPassword = 18,
  SecureChannel = 23,
  ConfigurationServer = 24,
  ConfigurationPort = 25,
};

/// Language texts and client settings.
class Resource {
 public:
  /// Takes the language of the language configuration, else of setting 14; English when neither is set or the
  /// language's file is missing or damaged (LastProblem tells). The files lie in `languageFolder`; an empty
  /// one means the program's own. Only the chosen language's file is read. `secrets` empty: the system's.
  explicit Resource(std::shared_ptr<Registry> registry, std::filesystem::path languageFolder = {},
                    std::shared_ptr<platform::SecretStore> secrets = {});

  /// The text of that number in the current language, else in English; "#59300" when there is none.
  wxString GetString(int number) const;
  /// The text with "%1", "%2", ... replaced by the parameters ("%%" is a per cent sign).
  wxString GetFormatString(int number, const std::vector<wxString>& parameters) const;
  /// A value of the language configuration: "CurrentLangue" (the current language's code), "Set_Display" and
  /// "Set_Value" (names and codes of all languages, joined by ";"), a code (the name of the language's
  /// registry file).
  wxString GetLanguageValue(const wxString& key) const;
  /// A client setting; empty when not set. They lie in the current user's registry under
  /// "Software\Ordwell\Mindloft\Settings", each named after its setting. `machineDefault` asks for the value
  /// of the same name in the machine's hive where the user has none. The login password is kept for this user
  /// only (ProtectedSetting).
  wxString GetSetting(Setting index, bool machineDefault = false) const;
  void SetSetting(Setting index, const wxString& text);
  /// The login password, in the clear or protected, and what goes with it.
  ProtectedSetting& LoginPassword() const { return *loginPassword_; }
  /// Sets every caption of the form in the current language: the form's title, and for each named window the
  /// caption that the language file gives for the form's name and the window's name (and its tool tip, where
  /// there is one).
  void LoadInfoOnForm(wxWindow& form) const;
  /// Sets the caption (and the tool tip) of one control of a form, and of what is inside it.
  void LoadInfoOnControl(wxWindow& control) const;
  /// The caption for a control, menu item or tool of a form in the current language, else in English; nothing
  /// when neither has it.
  std::optional<LanguageFile::Caption> CaptionOf(const wxString& form, const wxString& control) const;

  /// The code of the current language (1033, ...).
  int CurrentLanguage() const;
  /// Switches the language of this process; what is stored is not changed. False, and no change, when there
  /// is none of that code or its file is damaged.
  bool SwitchLanguage(int code);
  /// Whether SwitchLanguage would switch to it.
  bool CanSwitchTo(int code) const;
  /// Stores the language of this process as the one of the next start, in the language configuration and in
  /// setting 14.
  void KeepLanguage();
  const std::filesystem::path& LanguageFolder() const { return languageFolder_; }
  bool IsRightToLeft() const;
  /// Codes of all languages that can be used: English, simplified Chinese, Arabic, then others by code. The
  /// folder is read at the first call.
  std::vector<int> Languages() const;
  /// The language's name in itself.
  wxString LanguageName(int code) const;
  const LanguageFile& Language() const { return *language_; }
  /// What was wrong with the last language file that could not be used; empty when nothing was. English (or
  /// the language in use) stands in for it. The user reads text 61440 with this as its parameter.
  const wxString& LastProblem() const { return lastProblem_; }

 private:
  std::shared_ptr<const LanguageFile> TryLoad(int code) const;
  std::filesystem::path FileOf(int code) const;
  const LanguageFile& English() const;
  int StoredLanguage() const;

  std::shared_ptr<Registry> registry_;
  std::unique_ptr<ProtectedSetting> loginPassword_;
  std::filesystem::path languageFolder_;
  std::shared_ptr<const LanguageFile> language_;
  mutable std::shared_ptr<const LanguageFile> english_;  ///< the built-in one, once it is needed
  mutable std::map<int, wxString> names_;                ///< by code, once the folder has been read
  mutable wxString lastProblem_;
};

}  // namespace mindloft::Tessaline
