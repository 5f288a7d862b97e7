#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "backend/directory/Records.h"
#include "backend/directory/sqlite/Database.h"
#include "backend/errors/Error.h"

namespace mindloft {

/// Reads the records of these identifiers in their order with one statement, whose only parameter is the
/// identifier. Those that are gone are left out.
template <typename Record>
std::vector<Record> ReadRecords(sqlite::Database& database, std::string_view sql,
                                const std::vector<ObjectId>& ids, Record (*read)(const sqlite::Statement&)) {
  std::vector<Record> records;
  records.reserve(ids.size());
  auto row = database.Prepare(sql);
  for (ObjectId id : ids) {
    row->Reset();
    row->Bind(0, id);
    if (row->Step()) records.push_back(read(*row));
  }
  return records;
}

/// What a statement counts for one owner, who is its only parameter.
inline std::int64_t CountFor(sqlite::Database& database, std::string_view sql, ObjectId owner) {
  auto count = database.Prepare(sql);
  count->BindAll(owner);
  count->Step();
  return count->Int(0);
}

/// The first record, if there is one.
template <typename Record>
std::optional<Record> FirstOf(std::vector<Record> records) {
  if (records.empty()) return {};
  return std::move(records.front());
}

/// The record; ObjectNotFound when there is none.
template <typename Record>
Record Existing(std::optional<Record> record, const char* kind, ObjectId id) {
  if (!record) throw Error(ErrorNumber::ObjectNotFound, std::string(kind) + ' ' + std::to_string(id));
  return std::move(*record);
}

}  // namespace mindloft
