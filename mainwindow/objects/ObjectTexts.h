#pragma once

namespace mindloft::texts {

// Numbers of the texts that the object commands show.
inline constexpr int kDeletionTitle = 59312;

inline constexpr int kDeleteDomain = 59311;
inline constexpr int kDeleteUser = 59359;
inline constexpr int kDeleteGroup = 59360;
inline constexpr int kRemoveDomainUser = 59361;
inline constexpr int kMayNotDeleteDomains = 59363;
inline constexpr int kMayNotDeleteUsers = 59364;
inline constexpr int kOwnAccount = 58951;
inline constexpr int kUserIsGone = 55656;

inline constexpr int kDeleteUsers = 61700;        ///< %1 how many
inline constexpr int kDeleteGroups = 61701;       ///< %1 how many
inline constexpr int kRemoveDomainUsers = 61702;  ///< %1 how many
inline constexpr int kDeleteDomains = 61703;      ///< %1 how many
inline constexpr int kMayNotDeleteGroups = 61704;
inline constexpr int kMayNotRemoveDomainUsers = 61705;
inline constexpr int kObjectIsGone = 60041;
inline constexpr int kBuiltIn = 60048;              ///< %1 its name
inline constexpr int kDeletingDomain = 61710;       ///< %1 its name
inline constexpr int kDeletingUsers = 61711;        ///< %1 how many
inline constexpr int kTooManyToDelete = 61780;      ///< %1 how many at most, %2 how many are selected
inline constexpr int kRemovingDomainUsers = 61782;  ///< %1 how many
inline constexpr int kDeletingGroups = 61783;       ///< %1 how many

}  // namespace mindloft::texts
