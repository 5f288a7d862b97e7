#pragma once

#include <memory>
#include <string>

#include "backend/corvane/View.h"

namespace mindloft::Corvane {

class Role;

/// The roles of the installation.
class Roles {
 public:
  explicit Roles(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  /// Nothing when there is none.
  std::shared_ptr<Role> Item(const std::string& id) const;
  std::int64_t Count() const;
  RoleView View() const;

 private:
  std::shared_ptr<Session> session_;
};

}  // namespace mindloft::Corvane
