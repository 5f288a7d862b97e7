#include "backend/directory/store/DomainRemover.h"

#include "backend/directory/store/ProgressSteps.h"
#include "backend/directory/store/RecordReader.h"
#include "backend/directory/store/SlicedRemoval.h"

namespace mindloft {

void DomainRemover::Remove(ObjectId domain, JsonObject& before, const Progress& progress) {
  const std::int64_t users = CountFor(database_, "SELECT count(*) FROM domain_user WHERE domain = ?", domain);
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
    RemoveGroupMembers(database_, group.id, steps);
    database_.Prepare("DELETE FROM grp WHERE id = ?")->BindAll(group.id).Run();
    steps.Done(1);
  }
  RemoveDomainUsers(database_, domain, steps);
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

}  // namespace mindloft
