#pragma once

#include <cstdint>
#include <memory>

#include "controls/explorer/ExplorerRows.h"

class wxStaticText;

namespace mindloft {

class ctExplorer;

/// The greatest number of users that one command takes over from a list. Reading and marking so many takes
/// half a second.
inline constexpr std::int64_t kMostUsersAtOnce = 50'000;

/// Lists the rows under the columns name, full name and description in the current language. What was
/// selected, sorted or searched in the list before stays so.
void ShowUserList(ctExplorer& ctUser, std::shared_ptr<ExplorerRows> rows);
/// Says how many users are listed and selected.
void ShowUserCounts(wxStaticText& label, const ctExplorer& ctUser);
/// Whether not too many users are selected for one command; otherwise tells the user so.
bool MayTakeSelected(ctExplorer& ctUser);

}  // namespace mindloft
