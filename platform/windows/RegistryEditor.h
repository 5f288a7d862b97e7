#pragma once

#include <filesystem>
#include <memory>

#include "platform/RegistryImport.h"

namespace mindloft::platform {

/// Starts the system's registry editor on a registry file (regedit /s "file"), minimised, and does not wait
/// for it. Error(Registry) when it cannot be started, for example because the user refused it the rights that
/// it asks for.
std::unique_ptr<RegistryImport> StartRegistryEditor(const std::filesystem::path& file);

}  // namespace mindloft::platform
