// The windows on collections of SqliteDirectoryImpl.
#include "backend/directory/SqliteDirectoryImpl.h"

namespace mindloft {

void SqliteDirectoryImpl::RequireReadable(const Caller& caller, Collection collection) {
  if (KindOf(collection) == RecordKind::Journal) rights_.Require(caller, ReadJournal);
}

std::vector<ObjectId> SqliteDirectoryImpl::PageIds(const Query& query, RecordKind kind, std::int64_t first,
                                                   std::int64_t count) {
  RequireKind(query.collection, kind);
  if (first < 0 || count <= 0) return {};
  return kind == RecordKind::User ? index_.Page(query, first, count) : windows_.Page(query, first, count);
}

std::int64_t SqliteDirectoryImpl::Count(SessionId session, const Query& query) {
  return Read(session, [&](const Caller& caller) {
    RequireReadable(caller, query.collection);
    RecordKind kind = KindOf(query.collection);
    if (kind == RecordKind::User) return index_.Count(query);
    if (kind == RecordKind::Journal && query.filter.empty()) return journal_.Count();
    return windows_.Count(query);
  });
}

std::vector<UserRecord> SqliteDirectoryImpl::UserPage(SessionId session, const Query& query,
                                                      std::int64_t first, std::int64_t count) {
  return Read(session,
              [&](const Caller&) { return users_.Read(PageIds(query, RecordKind::User, first, count)); });
}

std::vector<RoleRecord> SqliteDirectoryImpl::RolePage(SessionId session, const Query& query,
                                                      std::int64_t first, std::int64_t count) {
  return Read(session,
              [&](const Caller&) { return roles_.Read(PageIds(query, RecordKind::Role, first, count)); });
}

std::vector<DomainRecord> SqliteDirectoryImpl::DomainPage(SessionId session, const Query& query,
                                                          std::int64_t first, std::int64_t count) {
  return Read(session,
              [&](const Caller&) { return domains_.Read(PageIds(query, RecordKind::Domain, first, count)); });
}

std::vector<GroupRecord> SqliteDirectoryImpl::GroupPage(SessionId session, const Query& query,
                                                        std::int64_t first, std::int64_t count) {
  return Read(session,
              [&](const Caller&) { return groups_.Read(PageIds(query, RecordKind::Group, first, count)); });
}

std::vector<StyleRecord> SqliteDirectoryImpl::StylePage(SessionId session, const Query& query,
                                                        std::int64_t first, std::int64_t count) {
  return Read(session,
              [&](const Caller&) { return styles_.Read(PageIds(query, RecordKind::Style, first, count)); });
}

std::vector<JournalRecord> SqliteDirectoryImpl::JournalPage(SessionId session, const Query& query,
                                                            std::int64_t first, std::int64_t count) {
  return Read(session, [&](const Caller& caller) {
    RequireReadable(caller, Collection::Journal);
    if (query.filter.empty()) {
      RequireKind(query.collection, RecordKind::Journal);
      return first < 0 || count <= 0 ? std::vector<JournalRecord>() : journal_.Page(first, count);
    }
    return journal_.Read(PageIds(query, RecordKind::Journal, first, count));
  });
}

std::int64_t SqliteDirectoryImpl::FindPrefix(SessionId session, const Query& query, std::string_view prefix,
                                             std::int64_t from) {
  return Read(session, [&](const Caller& caller) {
    RequireReadable(caller, query.collection);
    return KindOf(query.collection) == RecordKind::User ? index_.FindPrefix(query, prefix, from)
                                                        : windows_.FindPrefix(query, prefix, from);
  });
}

std::int64_t SqliteDirectoryImpl::PositionOf(SessionId session, const Query& query, ObjectId object) {
  return Read(session, [&](const Caller& caller) {
    RequireReadable(caller, query.collection);
    RecordKind kind = KindOf(query.collection);
    if (kind == RecordKind::User) return index_.PositionOf(query, object);
    if (kind == RecordKind::Journal && query.filter.empty()) return journal_.PositionOf(object);
    return windows_.PositionOf(query, object);
  });
}

bool SqliteDirectoryImpl::Contains(SessionId session, Collection collection, ObjectId scope,
                                   ObjectId object) {
  return Read(session, [&](const Caller& caller) {
    RequireReadable(caller, collection);
    return CollectionContains(*database_, collection, scope, object);
  });
}

}  // namespace mindloft
