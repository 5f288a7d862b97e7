#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "backend/corvane/Session.h"

namespace mindloft::Corvane {

class KDomain;

/// One knowledge domain as seen by the logged-in user, with that user's domain privileges.
class DomainContext {
 public:
  DomainContext(std::shared_ptr<Session> session, std::shared_ptr<Corvane::KDomain> domain);

  /// Whether the logged-in user has all bits of the privilege number in this domain. Read at the first call.
  bool HasPrivilege(std::uint32_t privilege) const;
  std::shared_ptr<Corvane::KDomain> KDomain() const { return domain_; }

  /// The number of the tree node that shows the domain; 0 when none does.
  std::int32_t NodeId() const { return nodeId_; }
  void SetNodeId(std::int32_t id) { nodeId_ = id; }

 private:
  std::shared_ptr<Session> session_;
  std::shared_ptr<Corvane::KDomain> domain_;
  mutable std::optional<std::uint32_t> privileges_;
  std::int32_t nodeId_ = 0;
};

}  // namespace mindloft::Corvane
