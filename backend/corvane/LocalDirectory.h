#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace mindloft::Corvane {

/// Whether the name of a configuration server means the directory file of this computer: "(local)" in any
/// case, or nothing; blanks around it do not count.
bool IsLocalServer(std::string_view server);

/// The least number of characters of a password.
int MinimumPasswordLength();

/// Makes a new directory file, and the folders that lead to it, with its first administrator. Throws
/// DirectoryExists when there is a file already, PasswordTooShort, NameMissing and the like for what the
/// administrator may not be called, PathAccess and DiskFull for a place that cannot be written.
void CreateLocalDirectory(const std::filesystem::path& file, const std::string& administratorName,
                          const std::string& password);

}  // namespace mindloft::Corvane
