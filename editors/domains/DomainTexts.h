#pragma once

namespace mindloft::texts {

// Numbers of the texts that the dialogs on knowledge domains show.
inline constexpr int kNameIsBlank = 51102;
inline constexpr int kNewDomain = 61720;
inline constexpr int kCreatingDomain = 61722;  ///< %1 its name
inline constexpr int kAddUsersTo = 61723;      ///< %1 the domain
inline constexpr int kUserInDomain = 61724;    ///< %1 the user, %2 the domain
inline constexpr int kFieldStyle = 61725;
inline constexpr int kReadsAlike = 61616;   ///< %1 a description that differs in what is not seen of it
inline constexpr int kAddingUsers = 61781;  ///< %1 how many

}  // namespace mindloft::texts
