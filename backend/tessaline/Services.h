#pragma once

#include <memory>

#include "backend/corvane/Corvane.h"
#include "backend/tessaline/Convert.h"
#include "backend/tessaline/Messenger.h"
#include "backend/tessaline/Registry.h"
#include "backend/tessaline/Resource.h"
#include "backend/tessaline/StringHelper.h"
#include "backend/tessaline/Utility.h"

namespace mindloft {

// The process-wide references. The shared services are created on first use and kept; the Application is
// created by Main and its Connection kept with it.

Tessaline::Resource& GetResource();
Tessaline::Convert& GetConvert();
Tessaline::StringHelper& GetStringHelper();
Tessaline::Registry& GetRegistry();
Tessaline::Messenger& GetMessenger();
Tessaline::Utility& GetUtility();

/// Nothing before Main has created it.
Corvane::Application* GetApplication();
void SetApplication(std::unique_ptr<Corvane::Application> application);
/// The login connection of the process; nothing before Main.
std::shared_ptr<Corvane::Connection> GetConnection();

/// Gives the process other parts than the system's own, before first use (tests, bench), and drops every
/// service.
struct ServiceOverrides {
  std::shared_ptr<platform::RegistryStore> registry;    ///< nothing: the system's
  std::filesystem::path logFolder;                      ///< empty: the platform's
  std::filesystem::path languageFolder;                 ///< empty: "resources/languages" beside the program
  std::shared_ptr<platform::SecretStore> secrets = {};  ///< nothing: the system's
};
void ResetServices(ServiceOverrides overrides = {});

}  // namespace mindloft
