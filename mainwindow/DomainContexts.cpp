#include "mainwindow/DomainContexts.h"

#include <algorithm>
#include <iterator>

#include "backend/corvane/KDomain.h"
#include "backend/tessaline/Text.h"

namespace mindloft {

namespace {

/// Domains that are read at a time.
constexpr std::int64_t kPage = 500;

}  // namespace

DomainContexts::DomainContexts(std::shared_ptr<Corvane::KDomains> domains) : domains_(std::move(domains)) {}

DomainContexts::Changes DomainContexts::Read() {
  const auto view = domains_->View();
  Changes changes;
  std::vector<wxString> keys;
  std::map<wxString, Entry> entries;
  for (std::int64_t first = 0;; first += kPage) {
    const auto records = view.Page(first, kPage);
    for (const auto& record : records) {
      const wxString key = ToWx(Corvane::IdText(record.id));
      Entry entry{record, domains_->Context(record)};
      const auto known = entries_.find(key);
      if (known != entries_.end()) entry.context->SetNodeId(known->second.context->NodeId());
      if (known == entries_.end() || known->second.record != record) changes.shown.push_back(key);
      // Pages are read one after the other: a domain that is renamed meanwhile may come twice.
      if (entries.insert_or_assign(key, std::move(entry)).second) keys.push_back(key);
    }
    if (static_cast<std::int64_t>(records.size()) < kPage) break;
  }
  std::ranges::copy_if(keys_, std::back_inserter(changes.gone),
                       [&](const wxString& key) { return !entries.contains(key); });
  keys_ = std::move(keys);
  entries_ = std::move(entries);
  return changes;
}

std::shared_ptr<Corvane::DomainContext> DomainContexts::Item(const wxString& key) const {
  const auto found = entries_.find(key);
  return found == entries_.end() ? nullptr : found->second.context;
}

wxString DomainContexts::KeyAfter(const wxString& key) const {
  auto found = std::ranges::find(keys_, key);
  return found == keys_.end() || ++found == keys_.end() ? wxString() : *found;
}

wxString DomainContexts::KeyOf(const Corvane::DomainContext& context) {
  return ToWx(context.KDomain()->Id());
}

}  // namespace mindloft
