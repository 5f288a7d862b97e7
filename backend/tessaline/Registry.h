#pragma once

#include <wx/string.h>

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "platform/RegistryImport.h"
#include "platform/RegistryStore.h"

namespace mindloft::Tessaline {

/// The registry: Windows' own, elsewhere a file in the user's configuration folder.
/// Failures to write are Errors (ErrorNumber::Registry).
class Registry {
 public:
  explicit Registry(std::shared_ptr<platform::RegistryStore> store);

  /// Empty when the value is absent, is no text, or is longer than `maximumLength` characters (0: any
  /// length).
  wxString GetString(platform::RegistryRoot root, const wxString& keyPath, const wxString& valueName,
                     int maximumLength = 0) const;
  /// Creates the key when needed.
  void SetString(platform::RegistryRoot root, const wxString& keyPath, const wxString& valueName,
                 const wxString& text);
  /// -1 when the value is absent or no number.
  std::int32_t GetNumber(platform::RegistryRoot root, const wxString& keyPath,
                         const wxString& valueName) const;
  void SetNumber(platform::RegistryRoot root, const wxString& keyPath, const wxString& valueName,
                 std::int32_t number);
  /// Names and texts of all text values under the key, in the store's order; empty when there is no such key.
  std::vector<std::pair<wxString, wxString>> EnumValues(platform::RegistryRoot root,
                                                        const wxString& keyPath) const;
  void DeleteValue(platform::RegistryRoot root, const wxString& keyPath, const wxString& valueName);
  /// A number, also one that is stored as text; 0 when absent or neither.
  std::int32_t GetValue(platform::RegistryRoot root, const wxString& keyPath,
                        const wxString& valueName) const;
  /// Begins to apply a registry file; see platform::RegistryStore::Import.
  std::unique_ptr<platform::RegistryImport> Import(const wxString& file);
  /// Whether all values that the file sets in that hive are in the registry.
  bool IsImported(const wxString& file, platform::RegistryRoot root) const;

 private:
  std::shared_ptr<platform::RegistryStore> store_;
};

}  // namespace mindloft::Tessaline
