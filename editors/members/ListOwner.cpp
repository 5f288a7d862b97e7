#include "editors/members/ListOwner.h"

#include "backend/corvane/Corvane.h"

namespace mindloft {
namespace {

struct Members {
  std::shared_ptr<Corvane::Users> operator()(const std::shared_ptr<Corvane::KDomain>& domain) const {
    return domain->DUsers();
  }
  template <typename Owner>
  std::shared_ptr<Corvane::Users> operator()(const Owner& owner) const {
    return owner->Members();
  }
};

struct Change {
  const std::string& additions;
  const std::string& removals;
  const Progress& progress;
  void operator()(const std::shared_ptr<Corvane::KDomain>& domain) const {
    domain->ChangeUsers(additions, removals, progress);
  }
  template <typename Owner>
  void operator()(const Owner& owner) const {
    owner->ChangeMembers(additions, removals, progress);
  }
};

}  // namespace

std::string IdOf(const ListOwner& owner) {
  return std::visit([](const auto& object) { return object->Id(); }, owner);
}

std::string NameOf(const ListOwner& owner) {
  return std::visit([](const auto& object) { return object->Name(); }, owner);
}

std::shared_ptr<Corvane::Users> MembersOf(const ListOwner& owner) {
  return std::visit(Members(), owner);
}

std::shared_ptr<Corvane::Users> GetUsersNotAccessible(const ListOwner& owner) {
  return std::visit([](const auto& object) { return object->GetUsersNotAccessible(); }, owner);
}

void ChangeMembers(const ListOwner& owner, const std::string& additions, const std::string& removals,
                   const Progress& progress) {
  std::visit(Change{additions, removals, progress}, owner);
}

}  // namespace mindloft
