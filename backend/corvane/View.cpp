#include "backend/corvane/View.h"

namespace mindloft::Corvane {
namespace {

/// The directory's page call for a kind of record.
template <typename Record>
constexpr auto kPageCall = nullptr;
template <>
constexpr auto kPageCall<UserRecord> = &Directory::UserPage;
template <>
constexpr auto kPageCall<RoleRecord> = &Directory::RolePage;
template <>
constexpr auto kPageCall<DomainRecord> = &Directory::DomainPage;
template <>
constexpr auto kPageCall<GroupRecord> = &Directory::GroupPage;
template <>
constexpr auto kPageCall<StyleRecord> = &Directory::StylePage;
template <>
constexpr auto kPageCall<JournalRecord> = &Directory::JournalPage;

}  // namespace

template <typename Record>
void View<Record>::SetOptions(const ViewOptions& options) {
  query_.order = options.order;
  query_.descending = options.descending;
  query_.filter = options.filter;
}

template <typename Record>
std::int64_t View<Record>::Count() const {
  return session_->Door().Count(session_->id, query_);
}

template <typename Record>
std::int64_t View<Record>::TotalCount() const {
  return session_->Door().Count(session_->id,
                                Query{query_.collection, query_.scope, query_.order, false, {}});
}

template <typename Record>
std::vector<Record> View<Record>::Page(std::int64_t first, std::int64_t count) const {
  return (session_->Door().*kPageCall<Record>)(session_->id, query_, first, count);
}

template <typename Record>
std::int64_t View<Record>::FindPrefix(const std::string& prefix, std::int64_t from) const {
  return session_->Door().FindPrefix(session_->id, query_, prefix, from);
}

template <typename Record>
std::int64_t View<Record>::PositionOf(ObjectId id) const {
  return session_->Door().PositionOf(session_->id, query_, id);
}

template <typename Record>
std::vector<std::int64_t> View<Record>::PositionsOf(const std::vector<ObjectId>& ids) const {
  return session_->Door().PositionsOf(session_->id, query_, ids);
}

template class View<UserRecord>;
template class View<RoleRecord>;
template class View<DomainRecord>;
template class View<GroupRecord>;
template class View<StyleRecord>;
template class View<JournalRecord>;

}  // namespace mindloft::Corvane
