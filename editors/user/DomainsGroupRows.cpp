#include "editors/user/DomainsGroupRows.h"

#include <algorithm>
#include <utility>

#include "backend/tessaline/Text.h"
#include "controls/rows/DirectoryImages.h"
#include "controls/rows/RecordRows.h"

namespace mindloft {

DomainsGroupRows::DomainsGroupRows(std::shared_ptr<Corvane::KDomains> domains)
    : domains_(std::move(domains)) {}

void DomainsGroupRows::SetDomains(std::vector<DomainRecord> domains) {
  parts_.clear();
  parts_.reserve(domains.size());
  for (DomainRecord& domain : domains) {
    auto groups = domains_->Context(domain)->KDomain()->DGroups()->View();
    parts_.push_back({std::move(domain), {}, std::move(groups), 0});
  }
  Arrange();
}

void DomainsGroupRows::Arrange() {
  rules_ = NameRules::OfSession();
  for (Part& part : parts_) part.key = rules_.SortKey(part.domain.name);
  std::sort(parts_.begin(), parts_.end(), [this](const Part& one, const Part& other) {
    return descending_ ? other.key < one.key : one.key < other.key;
  });
  for (Part& part : parts_) part.groups.SetOptions({Order::Name, descending_, filter_});
  counted_ = false;
}

ObjectId DomainsGroupRows::DomainOf(ObjectId group) const {
  const auto found = listed_.find(group);
  return found == listed_.end() ? 0 : found->second;
}

std::int64_t DomainsGroupRows::Count() {
  std::int64_t count = 0;
  for (Part& part : parts_) count += part.count = part.groups.Count();
  counted_ = true;
  return count;
}

std::int64_t DomainsGroupRows::TotalCount() {
  std::int64_t count = 0;
  for (const Part& part : parts_)
    count += filter_.empty() && counted_ ? part.count : part.groups.TotalCount();
  return count;
}

std::vector<ExplorerRow> DomainsGroupRows::Page(std::int64_t first, std::int64_t count) {
  if (!counted_) Count();
  std::vector<ExplorerRow> rows;
  for (const Part& part : parts_) {
    const auto wanted = count - static_cast<std::int64_t>(rows.size());
    if (wanted <= 0) break;
    if (first < part.count) {
      for (const GroupRecord& group : part.groups.Page(first, wanted)) {
        listed_[group.id] = part.domain.id;
        rows.push_back({FieldsOf(group, part.domain), ToWx(Corvane::IdText(group.id)), GroupImage});
      }
    }
    first = std::max<std::int64_t>(first - part.count, 0);
  }
  return rows;
}

wxString DomainsGroupRows::FieldsOf(const GroupRecord& group, const DomainRecord& domain) {
  return JoinFields({ToWx(group.name), ToWx(domain.name), ToWx(group.description)});
}

void DomainsGroupRows::Sort(int, bool descending) {
  descending_ = descending;
  Arrange();
}

void DomainsGroupRows::Filter(const wxString& text) {
  filter_ = ToUtf8(text);
  Arrange();
}

std::int64_t DomainsGroupRows::FindPrefix(const wxString& prefix, std::int64_t from) {
  if (!counted_) Count();
  const std::string sought = rules_.PrefixKey(ToUtf8(prefix));
  std::int64_t first = -1, position = 0;
  for (const Part& part : parts_) {
    if (part.count > 0 && part.key.starts_with(sought)) {
      if (position >= from) return position;
      // Within a domain the next row leads on.
      if (from < position + part.count) return from;
      if (first < 0) first = position;
    }
    position += part.count;
  }
  return first;
}

std::int64_t DomainsGroupRows::PositionOf(const wxString& key) {
  if (!counted_) Count();
  const ObjectId group = Corvane::IdFromText(ToUtf8(key));
  const ObjectId domain = DomainOf(group);
  std::int64_t position = 0;
  for (const Part& part : parts_) {
    if (part.domain.id == domain) {
      const std::int64_t inside = part.groups.PositionOf(group);
      return inside < 0 ? -1 : position + inside;
    }
    position += part.count;
  }
  return -1;
}

}  // namespace mindloft
