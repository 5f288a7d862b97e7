#pragma once

#include <filesystem>

#include "backend/directory/SqliteDirectory.h"

namespace mindloft {

/// Makes a new directory beside its final place and moves it there when it is complete. See
/// SqliteDirectory::Create.
void MakeDirectory(const std::filesystem::path& file, const FirstAdministrator& administrator,
                   bool overwrite);

}  // namespace mindloft
