#pragma once

namespace mindloft::texts {

// Numbers of the texts that the main window shows.
inline constexpr int kLoggedInAs = 59662;

inline constexpr int kCountFiltered = 61100;    ///< %1 rows shown of %2
inline constexpr int kCount = 61102;            ///< %1 rows
inline constexpr int kSelected = 61103;         ///< %1 rows selected
inline constexpr int kWorkingFolderIs = 61107;  ///< %1 the folder
inline constexpr int kNoWorkingFolder = 61108;
inline constexpr int kAbout = 61109;  ///< %1 the version
inline constexpr int kAboutTitle = 61110;
inline constexpr int kLanguageFailed = 61111;  ///< %1 the language

}  // namespace mindloft::texts
