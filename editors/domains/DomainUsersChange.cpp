#include "editors/domains/DomainUsersChange.h"

#include "backend/corvane/KDomain.h"
#include "backend/errors/Error.h"

namespace mindloft {

void ChangeDomainUsers(const Corvane::KDomain& domain, const std::string& additions,
                       const std::string& removals, const Progress& progress) {
  // Other consoles write now and then, not all the time.
  constexpr int kAttempts = 5;
  for (int attempt = 1;; ++attempt) {
    Corvane::KDomain current = domain;
    const auto stored = domain.Current();
    current.Rebase(stored, stored);
    try {
      return current.ChangeUsers(additions, removals, progress);
    } catch (const Error& error) {
      if (error.Number() != ErrorNumber::Conflict || attempt == kAttempts) throw;
    }
  }
}

}  // namespace mindloft
