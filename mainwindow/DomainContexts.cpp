#include "mainwindow/DomainContexts.h"

#include <algorithm>

#include "backend/corvane/KDomain.h"
#include "backend/tessaline/Text.h"

namespace mindloft {

DomainContexts::DomainContexts(std::shared_ptr<Corvane::KDomains> domains) : domains_(std::move(domains)) {}

void DomainContexts::Read() {
  constexpr std::int64_t kPage = 500;
  const auto view = domains_->View();
  keys_.clear();
  contexts_.clear();
  for (std::int64_t first = 0;; first += kPage) {
    const auto records = view.Page(first, kPage);
    for (const auto& record : records) Put(domains_->Context(record));
    if (static_cast<std::int64_t>(records.size()) < kPage) return;
  }
}

std::shared_ptr<Corvane::DomainContext> DomainContexts::Item(const wxString& key) const {
  const auto found = contexts_.find(key);
  return found == contexts_.end() ? nullptr : found->second;
}

std::shared_ptr<Corvane::DomainContext> DomainContexts::Stored(const wxString& key) const {
  return domains_->Item(ToUtf8(key));
}

wxString DomainContexts::Put(const std::shared_ptr<Corvane::DomainContext>& context) {
  const wxString key = KeyOf(*context);
  if (contexts_.insert_or_assign(key, context).second) keys_.push_back(key);
  return key;
}

void DomainContexts::Remove(const wxString& key) {
  contexts_.erase(key);
  std::erase(keys_, key);
}

wxString DomainContexts::KeyOf(const Corvane::DomainContext& context) {
  return ToWx(context.KDomain()->Id());
}

}  // namespace mindloft
