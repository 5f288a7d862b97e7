#include "mainwindow/DomainContexts.h"

#include <algorithm>

#include "backend/corvane/KDomain.h"
#include "backend/tessaline/Text.h"

namespace mindloft {

namespace {

/// Domains that are read at a time.
constexpr std::int64_t kPage = 500;

}  // namespace

DomainContexts::DomainContexts(std::shared_ptr<Corvane::KDomains> domains) : domains_(std::move(domains)) {}

void DomainContexts::Read() {
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

void DomainContexts::Update(const std::shared_ptr<Corvane::DomainContext>& context) {
  const wxString key = Put(context);
  std::erase(keys_, key);
  keys_.insert(std::ranges::find(keys_, StoredAfter(key)), key);
}

wxString DomainContexts::StoredAfter(const wxString& key) const {
  const auto view = domains_->View();
  const auto position = view.PositionOf(Corvane::IdFromText(ToUtf8(key)));
  if (position < 0) return {};
  // Domains made elsewhere are stored but not shown yet.
  for (std::int64_t first = position + 1;; first += kPage) {
    const auto records = view.Page(first, kPage);
    for (const auto& record : records)
      if (const wxString next = ToWx(Corvane::IdText(record.id)); contexts_.contains(next)) return next;
    if (static_cast<std::int64_t>(records.size()) < kPage) return {};
  }
}

wxString DomainContexts::KeyAfter(const wxString& key) const {
  auto found = std::ranges::find(keys_, key);
  return found == keys_.end() || ++found == keys_.end() ? wxString() : *found;
}

void DomainContexts::Remove(const wxString& key) {
  contexts_.erase(key);
  std::erase(keys_, key);
}

wxString DomainContexts::KeyOf(const Corvane::DomainContext& context) {
  return ToWx(context.KDomain()->Id());
}

}  // namespace mindloft
