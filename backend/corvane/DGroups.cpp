#include "backend/corvane/DGroups.h"

#include <utility>

#include "backend/corvane/DGroup.h"

namespace mindloft::Corvane {

DGroups::DGroups(std::shared_ptr<Session> session, ObjectId domain)
    : session_(std::move(session)), domain_(domain) {}

std::shared_ptr<DGroup> DGroups::Item(const std::string& id) const {
  auto record = session_->Door().FindGroup(session_->id, IdFromText(id));
  if (!record || record->domain != domain_) return nullptr;
  return std::make_shared<DGroup>(session_, std::move(*record));
}

std::vector<std::shared_ptr<DGroup>> DGroups::Items(const std::vector<ObjectId>& ids) const {
  std::vector<std::shared_ptr<DGroup>> groups;
  for (auto& record : session_->Door().FindGroups(session_->id, ids))
    if (record.domain == domain_) groups.push_back(std::make_shared<DGroup>(session_, std::move(record)));
  return groups;
}

std::int64_t DGroups::Count() const {
  return View().Count();
}

GroupView DGroups::View() const {
  return GroupView(session_, Collection::DomainGroups, domain_);
}

std::shared_ptr<DGroup> DGroups::OfKind(std::int32_t kind) const {
  constexpr std::int64_t kPage = 100;
  const auto view = View();
  for (std::int64_t first = 0;; first += kPage) {
    auto page = view.Page(first, kPage);
    for (auto& record : page) {
      if (record.kind == kind) return std::make_shared<DGroup>(session_, std::move(record));
    }
    if (static_cast<std::int64_t>(page.size()) < kPage) return nullptr;
  }
}

std::shared_ptr<DGroup> DGroups::Add() const {
  GroupRecord record;
  record.domain = domain_;
  return std::make_shared<DGroup>(session_, std::move(record));
}

void DGroups::Delete(const std::vector<ObjectVersion>& groups, const Progress& progress) const {
  session_->Door().DeleteGroups(session_->id, groups, progress);
}

}  // namespace mindloft::Corvane
