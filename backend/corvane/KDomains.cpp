#include "backend/corvane/KDomains.h"

#include "backend/corvane/DomainContext.h"
#include "backend/corvane/KDomain.h"

namespace mindloft::Corvane {

std::shared_ptr<KDomain> KDomains::Add() const {
  return std::make_shared<KDomain>(session_, DomainRecord());
}

std::shared_ptr<DomainContext> KDomains::Item(const std::string& key) const {
  const auto record = session_->Door().FindDomain(session_->id, IdFromText(key));
  return record ? Context(*record) : nullptr;
}

std::int64_t KDomains::Count() const {
  return View().Count();
}

DomainView KDomains::View() const {
  return DomainView(session_, Collection::Domains);
}

std::shared_ptr<DomainContext> KDomains::Context(const DomainRecord& record) const {
  return std::make_shared<DomainContext>(session_, std::make_shared<KDomain>(session_, record));
}

void KDomains::Delete(const ObjectVersion& domain, const Progress& progress) const {
  session_->Door().DeleteDomain(session_->id, domain, progress);
}

}  // namespace mindloft::Corvane
