// The windows on collections of SqliteDirectoryImpl.
#include "backend/directory/SqliteDirectoryImpl.h"

namespace mindloft {

void SqliteDirectoryImpl::RequireReadable(const Caller& caller, Collection collection) {
  if (KindOf(collection) == RecordKind::Journal) rights_.Require(caller, ReadJournal);
}

std::vector<ObjectId> SqliteDirectoryImpl::PageIds(const Caller& caller, const Query& query, RecordKind kind,
                                                   std::int64_t first, std::int64_t count) {
  RequireKind(query.collection, kind);
  if (first < 0 || count <= 0) return {};
  return kind == RecordKind::User ? index_.Page(query, first, count, caller.rules)
                                  : windows_.Page(query, first, count, caller.rules);
}

std::int64_t SqliteDirectoryImpl::Count(SessionId session, const Query& query) {
  return Read(session, [&](const Caller& caller) {
    RequireReadable(caller, query.collection);
    RecordKind kind = KindOf(query.collection);
    if (kind == RecordKind::User) return index_.Count(query, caller.rules);
    if (kind == RecordKind::Journal && query.filter.empty()) return journal_.Count();
    return windows_.Count(query, caller.rules);
  });
}

std::vector<UserRecord> SqliteDirectoryImpl::UserPage(SessionId session, const Query& query,
                                                      std::int64_t first, std::int64_t count) {
  return Read(session, [&](const Caller& caller) {
    return users_.Read(PageIds(caller, query, RecordKind::User, first, count));
  });
}

std::vector<RoleRecord> SqliteDirectoryImpl::RolePage(SessionId session, const Query& query,
                                                      std::int64_t first, std::int64_t count) {
  return Read(session, [&](const Caller& caller) {
    return roles_.Read(PageIds(caller, query, RecordKind::Role, first, count));
  });
}

std::vector<DomainRecord> SqliteDirectoryImpl::DomainPage(SessionId session, const Query& query,
                                                          std::int64_t first, std::int64_t count) {
  return Read(session, [&](const Caller& caller) {
    return domains_.Read(PageIds(caller, query, RecordKind::Domain, first, count));
  });
}

std::vector<GroupRecord> SqliteDirectoryImpl::GroupPage(SessionId session, const Query& query,
                                                        std::int64_t first, std::int64_t count) {
  return Read(session, [&](const Caller& caller) {
    return groups_.Read(PageIds(caller, query, RecordKind::Group, first, count));
  });
}

std::vector<StyleRecord> SqliteDirectoryImpl::StylePage(SessionId session, const Query& query,
                                                        std::int64_t first, std::int64_t count) {
  return Read(session, [&](const Caller& caller) {
    return styles_.Read(PageIds(caller, query, RecordKind::Style, first, count));
  });
}

std::vector<JournalRecord> SqliteDirectoryImpl::JournalPage(SessionId session, const Query& query,
                                                            std::int64_t first, std::int64_t count) {
  return Read(session, [&](const Caller& caller) {
    RequireReadable(caller, Collection::Journal);
    if (query.filter.empty()) {
      RequireKind(query.collection, RecordKind::Journal);
      return first < 0 || count <= 0 ? std::vector<JournalRecord>() : journal_.Page(first, count);
    }
    return journal_.Read(PageIds(caller, query, RecordKind::Journal, first, count));
  });
}

std::int64_t SqliteDirectoryImpl::FindPrefix(SessionId session, const Query& query, std::string_view prefix,
                                             std::int64_t from) {
  return Read(session, [&](const Caller& caller) {
    RequireReadable(caller, query.collection);
    return KindOf(query.collection) == RecordKind::User
               ? index_.FindPrefix(query, prefix, from, caller.rules)
               : windows_.FindPrefix(query, prefix, from, caller.rules);
  });
}

std::int64_t SqliteDirectoryImpl::PositionOf(SessionId session, const Query& query, ObjectId object) {
  return PositionsOf(session, query, {object}).front();
}

std::vector<std::int64_t> SqliteDirectoryImpl::PositionsOf(SessionId session, const Query& query,
                                                           const std::vector<ObjectId>& objects) {
  return Read(session, [&](const Caller& caller) {
    RequireReadable(caller, query.collection);
    const RecordKind kind = KindOf(query.collection);
    if (kind == RecordKind::User) return index_.PositionsOf(query, objects, caller.rules);
    if (kind == RecordKind::Journal && query.filter.empty()) return journal_.PositionsOf(objects);
    return windows_.PositionsOf(query, objects, caller.rules);
  });
}

bool SqliteDirectoryImpl::Contains(SessionId session, Collection collection, ObjectId scope,
                                   ObjectId object) {
  return Read(session, [&](const Caller& caller) {
    RequireReadable(caller, collection);
    return CollectionContains(*database_, collection, scope, object);
  });
}

std::vector<ObjectVersion> SqliteDirectoryImpl::VersionsIn(SessionId session, Collection collection,
                                                           ObjectId scope,
                                                           const std::vector<ObjectId>& objects) {
  return Read(session,
              [&](const Caller&) { return CollectionVersions(*database_, collection, scope, objects); });
}

}  // namespace mindloft
