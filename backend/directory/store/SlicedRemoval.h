#pragma once

#include "backend/directory/Records.h"
#include "backend/directory/sqlite/Database.h"
#include "backend/directory/store/ProgressSteps.h"

namespace mindloft {

// Rows that can be as many as there are users are removed slice by slice, and each slice is reported.

void RemoveGroupMembers(sqlite::Database& database, ObjectId group, ProgressSteps& steps);
void RemoveDomainUsers(sqlite::Database& database, ObjectId domain, ProgressSteps& steps);

}  // namespace mindloft
