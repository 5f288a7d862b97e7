#include "backend/corvane/View.h"

namespace mindloft::Corvane {
namespace {

// One reader per kind of record, so that the template below finds its page call by type.
using Position = std::int64_t;

void Read(const Session& session, const Query& query, Position first, Position count,
          std::vector<UserRecord>& page) {
  page = session.Door().UserPage(session.id, query, first, count);
}
void Read(const Session& session, const Query& query, Position first, Position count,
          std::vector<RoleRecord>& page) {
  page = session.Door().RolePage(session.id, query, first, count);
}
void Read(const Session& session, const Query& query, Position first, Position count,
          std::vector<DomainRecord>& page) {
  page = session.Door().DomainPage(session.id, query, first, count);
}
void Read(const Session& session, const Query& query, Position first, Position count,
          std::vector<GroupRecord>& page) {
  page = session.Door().GroupPage(session.id, query, first, count);
}
void Read(const Session& session, const Query& query, Position first, Position count,
          std::vector<StyleRecord>& page) {
  page = session.Door().StylePage(session.id, query, first, count);
}
void Read(const Session& session, const Query& query, Position first, Position count,
          std::vector<JournalRecord>& page) {
  page = session.Door().JournalPage(session.id, query, first, count);
}

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
  std::vector<Record> page;
  Read(*session_, query_, first, count, page);
  return page;
}

template <typename Record>
std::int64_t View<Record>::FindPrefix(const std::string& prefix, std::int64_t from) const {
  return session_->Door().FindPrefix(session_->id, query_, prefix, from);
}

template <typename Record>
std::int64_t View<Record>::PositionOf(ObjectId id) const {
  return session_->Door().PositionOf(session_->id, query_, id);
}

template class View<UserRecord>;
template class View<RoleRecord>;
template class View<DomainRecord>;
template class View<GroupRecord>;
template class View<StyleRecord>;
template class View<JournalRecord>;

}  // namespace mindloft::Corvane
