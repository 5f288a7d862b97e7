#include "backend/directory/store/DomainCopier.h"

#include <utility>

#include "backend/directory/store/RecordReader.h"

namespace mindloft {

void DomainCopier::Copy(const DomainCopy& copy, ObjectId target, const Progress& progress) {
  if (copy.members && !(copy.groups && copy.users)) {
    throw Error(ErrorNumber::TypeMismatch, "members are copied with groups and users only");
  }
  std::int64_t total = 0;
  if (copy.groups) total += CountFor(database_, "SELECT count(*) FROM grp WHERE domain = ?", copy.source);
  if (copy.users)
    total += CountFor(database_, "SELECT count(*) FROM domain_user WHERE domain = ?", copy.source);
  if (copy.members) {
    total += CountFor(database_,
                      "SELECT count(*) FROM group_member WHERE grp IN (SELECT id FROM grp WHERE domain = ?)",
                      copy.source);
  }
  ProgressSteps steps(progress, total);
  if (copy.users) {
    CopyUsers("SELECT user FROM domain_user WHERE domain = ? AND user > ? ORDER BY user LIMIT ?",
              "INSERT INTO domain_user (domain, user) VALUES (?, ?)", copy.source, target, steps);
  }
  if (!copy.groups) return;
  for (GroupRecord group : groups_.Read(Groups(copy.source))) {
    ObjectId source = std::exchange(group.id, 0);
    group.domain = target;
    ObjectId newGroup = groups_.Insert(group);
    steps.Done(1);
    if (!copy.members) continue;
    CopyUsers("SELECT user FROM group_member WHERE grp = ? AND user > ? ORDER BY user LIMIT ?",
              "INSERT INTO group_member (grp, user) VALUES (?, ?)", source, newGroup, steps);
  }
}

std::vector<ObjectId> DomainCopier::Groups(ObjectId domain) {
  std::vector<ObjectId> ids;
  auto row = database_.Prepare("SELECT id FROM grp WHERE domain = ? ORDER BY id");
  row->BindAll(domain);
  while (row->Step()) ids.push_back(row->Int(0));
  return ids;
}

void DomainCopier::CopyUsers(const char* slice, const char* insert, ObjectId source, ObjectId target,
                             ProgressSteps& steps) {
  std::vector<ObjectId> users;
  ObjectId last = 0;
  do {
    users.clear();
    {
      auto row = database_.Prepare(slice);
      row->BindAll(source, last, ProgressSteps::kStep);
      while (row->Step()) users.push_back(row->Int(0));
    }
    for (ObjectId user : users) {
      database_.Prepare(insert)->BindAll(target, user).Run();
      last = user;
    }
    if (!users.empty()) steps.Done(std::ssize(users));
  } while (!users.empty());
}

}  // namespace mindloft
