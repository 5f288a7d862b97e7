#include "backend/directory/store/CollectionVersions.h"

#include "backend/directory/store/Collections.h"

namespace mindloft {
namespace {

const char* VersionSql(Collection collection) {
  switch (KindOf(collection)) {
    case RecordKind::User:
      return "SELECT version FROM user WHERE id = ?";
    case RecordKind::Role:
      return "SELECT version FROM role WHERE id = ?";
    case RecordKind::Domain:
      return "SELECT version FROM domain WHERE id = ?";
    case RecordKind::Group:
      return "SELECT version FROM grp WHERE id = ?";
    case RecordKind::Style:
      return "SELECT version FROM style WHERE id = ?";
    case RecordKind::Journal:
      break;
  }
  throw Error(ErrorNumber::TypeMismatch, "rows of the journal have no versions");
}

}  // namespace

std::vector<ObjectVersion> CollectionVersions(sqlite::Database& database, Collection collection,
                                              ObjectId scope, const std::vector<ObjectId>& objects) {
  const char* const sql = VersionSql(collection);
  std::vector<ObjectVersion> versions;
  for (const ObjectId object : objects) {
    if (!CollectionContains(database, collection, scope, object)) continue;
    auto row = database.Prepare(sql);
    row->BindAll(object);
    if (row->Step()) versions.push_back({object, row->Int(0)});
  }
  return versions;
}

}  // namespace mindloft
