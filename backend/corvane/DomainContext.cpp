#include "backend/corvane/DomainContext.h"

#include <utility>

#include "backend/corvane/KDomain.h"

namespace mindloft::Corvane {

DomainContext::DomainContext(std::shared_ptr<Session> session, std::shared_ptr<Corvane::KDomain> domain)
    : session_(std::move(session)), domain_(std::move(domain)) {}

bool DomainContext::HasPrivilege(std::uint32_t privilege) const {
  auto& door = session_->Door();
  if (!privileges_) privileges_ = door.DomainPrivileges(session_->id, domain_->Stored().id);
  return (*privileges_ & privilege) == privilege;
}

}  // namespace mindloft::Corvane
