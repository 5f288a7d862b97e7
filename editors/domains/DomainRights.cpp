#include "editors/domains/DomainRights.h"

#include "backend/directory/Privileges.h"
#include "core/modShare.h"

namespace mindloft {

bool MayChangeDomain(const std::shared_ptr<Corvane::DomainContext>& domain, std::uint32_t domainPrivilege) {
  return domain && (CheckDomainPrivilege(domain, domainPrivilege) || CheckSysPrivilege(ChangeDomains));
}

}  // namespace mindloft
