#include "backend/directory/store/StyleStore.h"

#include "backend/directory/store/NameKeys.h"
#include "backend/directory/store/RecordReader.h"
#include "backend/directory/store/TextRules.h"

namespace mindloft {
namespace {

StyleRecord ReadStyle(const sqlite::Statement& row) {
  return {.id = row.Int(0), .version = row.Int(1), .name = row.Text(2), .definition = row.Text(3)};
}

JournalSubject SubjectOf(const StyleRecord& style) {
  return {"style", style.id, style.name};
}

JsonObject Fields(const StyleRecord& style) {
  JsonObject json;
  json.Add("name", style.name);
  json.Add("definition", style.definition);
  return json;
}

}  // namespace

std::vector<StyleRecord> StyleStore::Read(const std::vector<ObjectId>& ids) {
  return ReadRecords(parts_.database, "SELECT id, version, name, definition FROM style WHERE id = ?", ids,
                     ReadStyle);
}

std::optional<StyleRecord> StyleStore::Find(ObjectId id) {
  return FirstOf(Read({id}));
}

StyleRecord StyleStore::Require(const ObjectVersion& style) {
  StyleRecord stored = Existing(Find(style.id), "style", style.id);
  parts_.journal.RequireVersion(SubjectOf(stored), stored.version, style.version);
  return stored;
}

StyleRecord StyleStore::Create(const Caller& caller, StyleRecord style) {
  parts_.rights.Require(caller, ManageStyles);
  style.name = CheckedName(style.name);
  style.definition = CheckedText(style.definition, "definition");
  style.version = 1;
  parts_.database.Prepare("INSERT INTO style (version, name, name_key, definition) VALUES (1, ?, ?, ?)")
      ->BindAll(style.name, FreeNameKey(parts_.database, "style", style.name), style.definition)
      .Run();
  style.id = parts_.database.LastInsertId();
  parts_.journal.Write(caller.name, "create", SubjectOf(style), {}, Fields(style));
  return style;
}

StyleRecord StyleStore::Change(const Caller& caller, const StyleChange& change) {
  parts_.rights.Require(caller, ManageStyles);
  StyleRecord style = Require(change);
  FieldChanges changes;
  if (change.name) changes.Put("name", style.name, std::optional(CheckedName(*change.name)));
  if (change.definition) {
    changes.Put("definition", style.definition, std::optional(CheckedText(*change.definition, "definition")));
  }
  if (changes.Empty()) return style;
  ++style.version;
  parts_.database
      .Prepare("UPDATE style SET version = ?, name = ?, name_key = ?, definition = ? WHERE id = ?")
      ->BindAll(style.version, style.name, FreeNameKey(parts_.database, "style", style.name, style.id),
                style.definition, style.id)
      .Run();
  parts_.journal.Write(caller.name, "change", SubjectOf(style), changes);
  return style;
}

void StyleStore::Delete(const Caller& caller, const ObjectVersion& style) {
  parts_.rights.Require(caller, ManageStyles);
  StyleRecord stored = Require(style);
  ReleaseDomains(caller, stored.id);
  parts_.database.Prepare("DELETE FROM style WHERE id = ?")->BindAll(stored.id).Run();
  parts_.journal.Write(caller.name, "delete", SubjectOf(stored), Fields(stored));
}

void StyleStore::ReleaseDomains(const Caller& caller, ObjectId style) {
  std::vector<std::pair<ObjectId, std::string>> domains;
  {
    auto row = parts_.database.Prepare("SELECT id, name FROM domain WHERE style = ?");
    row->BindAll(style);
    while (row->Step()) domains.emplace_back(row->Int(0), row->Text(1));
  }
  for (const auto& [id, name] : domains) {
    parts_.database.Prepare("UPDATE domain SET style = NULL, version = version + 1 WHERE id = ?")
        ->BindAll(id)
        .Run();
    ObjectId stored = style;
    FieldChanges changes;
    changes.Put("style", stored, std::optional(ObjectId{0}));
    parts_.journal.Write(caller.name, "change", {"domain", id, name}, changes);
  }
}

}  // namespace mindloft
