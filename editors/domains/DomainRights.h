#pragma once

#include <cstdint>
#include <memory>

namespace mindloft {

namespace Corvane {
class DomainContext;
}

/// Whether the logged-in user may do it in this domain: with the domain's own privilege, or with the
/// installation's to change any domain. False without a domain.
bool MayChangeDomain(const std::shared_ptr<Corvane::DomainContext>& domain, std::uint32_t domainPrivilege);

}  // namespace mindloft
