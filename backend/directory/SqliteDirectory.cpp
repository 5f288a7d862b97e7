#include "backend/directory/SqliteDirectory.h"

#include "backend/directory/SqliteDirectoryImpl.h"
#include "backend/directory/file/DirectoryFile.h"
#include "backend/directory/file/DirectoryMaker.h"
#include "backend/directory/file/Schema.h"

namespace mindloft {

void SqliteDirectory::Create(const std::filesystem::path& file, const FirstAdministrator& administrator,
                             bool overwrite) {
  try {
    MakeDirectory(file, administrator, overwrite);
  } catch (...) {
    throw CurrentError();
  }
}

std::unique_ptr<SqliteDirectory> SqliteDirectory::Open(const std::filesystem::path& file) {
  try {
    auto database = OpenDirectoryFile(file);
    Migrate(*database, Migrations());
    return std::make_unique<SqliteDirectoryImpl>(std::move(database), LoginThrottle::Of(file));
  } catch (...) {
    throw CurrentError();
  }
}

}  // namespace mindloft
