#pragma once

#include "backend/directory/Query.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// The kinds of records that collections hold.
enum class RecordKind { User, Role, Domain, Group, Style, Journal };

RecordKind KindOf(Collection collection);

/// TypeMismatch unless the collection holds records of the kind.
void RequireKind(Collection collection, RecordKind kind);

/// Whether the object belongs to the collection.
bool CollectionContains(sqlite::Database& database, Collection collection, ObjectId scope, ObjectId object);

}  // namespace mindloft
