#pragma once

#include <string>
#include <vector>

#include "backend/tessaline/Resource.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {

inline constexpr const char* kUrlKey = "Software\\Ordwell\\Mindloft\\URLLIST";

/// Opens the forms of the connection settings over settings of the test's own.
class ConfigFixture : public PrivateServices {
 protected:
  void TearDown() override;

  static wxString Setting(int index);
  static void Set(int index, const wxString& text);
  /// Puts a value of any type in the place of a setting.
  void SetRaw(const std::string& setting, const platform::RegistryValue& value);
  /// All settings of the user, as the registry has them, one per line.
  std::string AllSettings() const;

  /// Shows the connection settings to a user, who has to close them.
  static void Configure(ModalDriver::Script script);

  void AddUrl(const std::string& key, const std::string& url);
  /// The URLs in the registry, in its order.
  std::vector<std::string> Urls() const;
};

}  // namespace mindloft::test
