#include "backend/directory/store/DomainRemover.h"

namespace mindloft {

void DomainRemover::Remove(ObjectId domain, JsonObject& before, const Progress& progress) {
  std::int64_t users = 0;
  {
    auto count = database_.Prepare("SELECT count(*) FROM domain_user WHERE domain = ?");
    count->BindAll(domain);
    count->Step();
    users = count->Int(0);
  }
  std::vector<Group> groups = Groups(domain);
  std::vector<std::pair<ObjectId, std::string>> names;
  std::int64_t total = users + std::ssize(groups) + 1;
  for (const auto& group : groups) {
    total += group.members;
    names.emplace_back(group.id, group.name);
  }
  before.Add("users", users);
  before.Add("groups", names);

  ProgressSteps steps(progress, total);
  for (const auto& group : groups) {
    RemoveInSlices(
        "DELETE FROM group_member WHERE grp = ?1 AND user IN "
        "(SELECT user FROM group_member WHERE grp = ?1 ORDER BY user LIMIT ?2)",
        group.id, steps);
    database_.Prepare("DELETE FROM grp WHERE id = ?")->BindAll(group.id).Run();
    steps.Done(1);
  }
  RemoveInSlices(
      "DELETE FROM domain_user WHERE domain = ?1 AND user IN "
      "(SELECT user FROM domain_user WHERE domain = ?1 ORDER BY user LIMIT ?2)",
      domain, steps);
  database_.Prepare("DELETE FROM domain WHERE id = ?")->BindAll(domain).Run();
  steps.Done(1);
}

std::vector<DomainRemover::Group> DomainRemover::Groups(ObjectId domain) {
  std::vector<Group> groups;
  auto row = database_.Prepare(
      "SELECT g.id, g.name, (SELECT count(*) FROM group_member m WHERE m.grp = g.id) FROM grp g "
      "WHERE g.domain = ? ORDER BY g.id");
  row->BindAll(domain);
  while (row->Step()) groups.push_back({row->Int(0), row->Text(1), row->Int(2)});
  return groups;
}

void DomainRemover::RemoveInSlices(const char* sql, ObjectId owner, ProgressSteps& steps) {
  for (;;) {
    database_.Prepare(sql)->BindAll(owner, ProgressSteps::kStep).Run();
    std::int64_t removed = database_.Changes();
    if (removed == 0) return;
    steps.Done(removed);
  }
}

}  // namespace mindloft
