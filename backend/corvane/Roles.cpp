#include "backend/corvane/Roles.h"

#include <utility>

#include "backend/corvane/Role.h"

namespace mindloft::Corvane {

std::shared_ptr<Role> Roles::Item(const std::string& id) const {
  auto record = session_->Door().FindRole(session_->id, IdFromText(id));
  return record ? std::make_shared<Role>(session_, std::move(*record)) : nullptr;
}

std::int64_t Roles::Count() const {
  return View().Count();
}

RoleView Roles::View() const {
  return RoleView(session_, Collection::Roles);
}

}  // namespace mindloft::Corvane
