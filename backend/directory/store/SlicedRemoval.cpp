#include "backend/directory/store/SlicedRemoval.h"

namespace mindloft {
namespace {

void RemoveInSlices(sqlite::Database& database, const char* sql, ObjectId owner, ProgressSteps& steps) {
  for (;;) {
    database.Prepare(sql)->BindAll(owner, ProgressSteps::kStep).Run();
    const std::int64_t removed = database.Changes();
    if (removed == 0) return;
    steps.Done(removed);
  }
}

}  // namespace

void RemoveGroupMembers(sqlite::Database& database, ObjectId group, ProgressSteps& steps) {
  RemoveInSlices(database,
                 "DELETE FROM group_member WHERE grp = ?1 AND user IN "
                 "(SELECT user FROM group_member WHERE grp = ?1 ORDER BY user LIMIT ?2)",
                 group, steps);
}

void RemoveDomainUsers(sqlite::Database& database, ObjectId domain, ProgressSteps& steps) {
  RemoveInSlices(database,
                 "DELETE FROM domain_user WHERE domain = ?1 AND user IN "
                 "(SELECT user FROM domain_user WHERE domain = ?1 ORDER BY user LIMIT ?2)",
                 domain, steps);
}

}  // namespace mindloft
