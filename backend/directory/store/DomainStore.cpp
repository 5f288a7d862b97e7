#include "backend/directory/store/DomainStore.h"

#include "backend/directory/store/DomainCopier.h"
#include "backend/directory/store/DomainRemover.h"
#include "backend/directory/store/NameKeys.h"
#include "backend/directory/store/RecordReader.h"
#include "backend/directory/store/TextRules.h"

namespace mindloft {
namespace {

DomainRecord ReadDomain(const sqlite::Statement& row) {
  return {.id = row.Int(0),
          .version = row.Int(1),
          .name = row.Text(2),
          .description = row.Text(3),
          .document = {},
          .style = row.Int(4),
          .disabled = row.Int(5) != 0};
}

DomainRecord ReadWholeDomain(const sqlite::Statement& row) {
  DomainRecord domain = ReadDomain(row);
  domain.document = row.Text(6);
  return domain;
}

std::string CheckedDocument(const std::string& document) {
  return CheckedText(document, "document", kDocumentLength);
}

JournalSubject SubjectOf(const DomainRecord& domain) {
  return {"domain", domain.id, domain.name};
}

JsonObject Fields(const DomainRecord& domain) {
  JsonObject json;
  json.Add("name", domain.name);
  json.Add("description", domain.description);
  json.Add("style", domain.style);
  json.Add("disabled", domain.disabled);
  if (!domain.document.empty()) json.Add("documentBytes", std::ssize(domain.document));
  return json;
}

}  // namespace

std::vector<DomainRecord> DomainStore::Read(const std::vector<ObjectId>& ids) {
  return ReadRecords(parts_.database,
                     "SELECT id, version, name, description, style, disabled FROM domain WHERE id = ?", ids,
                     ReadDomain);
}

std::optional<DomainRecord> DomainStore::Find(ObjectId id) {
  return FirstOf(
      ReadRecords(parts_.database,
                  "SELECT id, version, name, description, style, disabled, document FROM domain WHERE id = ?",
                  std::vector{id}, ReadWholeDomain));
}

DomainRecord DomainStore::Require(const ObjectVersion& domain) {
  DomainRecord stored = Existing(Find(domain.id), "domain", domain.id);
  parts_.journal.RequireVersion(SubjectOf(stored), stored.version, domain.version);
  return stored;
}

void DomainStore::RequireStyle(ObjectId style) {
  if (style == 0) return;
  auto row = parts_.database.Prepare("SELECT 1 FROM style WHERE id = ?");
  row->BindAll(style);
  if (!row->Step()) throw Error(ErrorNumber::ObjectNotFound, "style " + std::to_string(style));
}

DomainRecord DomainStore::Create(const Caller& caller, DomainRecord domain, const DomainCopy& copy,
                                 const Progress& progress) {
  parts_.rights.Require(caller, CreateDomains);
  domain.name = CheckedName(domain.name);
  domain.description = CheckedText(domain.description, "description");
  domain.document = CheckedDocument(domain.document);
  RequireStyle(domain.style);
  domain.version = 1;
  parts_.database
      .Prepare(
          "INSERT INTO domain (version, name, name_key, description, style, disabled, document) "
          "VALUES (1, ?, ?, ?, nullif(?, 0), ?, ?)")
      ->BindAll(domain.name, FreeNameKey(parts_.database, "domain", domain.name), domain.description,
                domain.style, domain.disabled, domain.document)
      .Run();
  domain.id = parts_.database.LastInsertId();
  JsonObject after = Fields(domain);
  if (copy.source != 0) {
    Existing(Find(copy.source), "domain", copy.source);
    DomainCopier(parts_, groups_).Copy(copy, domain.id, progress);
    after.Add("copiedFrom", copy.source);
    after.Add("copiedGroups", copy.groups);
    after.Add("copiedUsers", copy.users);
    after.Add("copiedMembers", copy.members);
  }
  if (copy.source == 0 || !copy.groups) groups_.Insert(NewAdministratorsGroup(domain.id));
  parts_.journal.Write(caller.name, "create", SubjectOf(domain), {}, after);
  return domain;
}

void DomainStore::PutDocument(DomainRecord& domain, const std::string& document, FieldChanges& changes) {
  if (document == domain.document) return;
  // That the formats changed is enough for the journal: whole documents would make it grow without bounds.
  changes.Note("documentBytes", std::ssize(domain.document), std::ssize(document));
  domain.document = CheckedDocument(document);
  parts_.database.Prepare("UPDATE domain SET document = ? WHERE id = ?")
      ->BindAll(domain.document, domain.id)
      .Run();
}

DomainRecord DomainStore::Change(const Caller& caller, const DomainChange& change) {
  parts_.rights.RequireInDomain(caller, change.id, ChangeDomain);
  DomainRecord domain = Require(change);
  FieldChanges changes;
  if (change.name) changes.Put("name", domain.name, std::optional(CheckedName(*change.name)));
  if (change.description) {
    changes.Put("description", domain.description,
                std::optional(CheckedText(*change.description, "description")));
  }
  if (change.document || change.description) PutDocument(domain, change.document.value_or(""), changes);
  if (change.style) RequireStyle(*change.style);
  changes.Put("style", domain.style, change.style);
  changes.Put("disabled", domain.disabled, change.disabled);
  if (changes.Empty()) return domain;

  ++domain.version;
  parts_.database
      .Prepare(
          "UPDATE domain SET version = ?, name = ?, name_key = ?, description = ?, "
          "style = nullif(?, 0), disabled = ? WHERE id = ?")
      ->BindAll(domain.version, domain.name, FreeNameKey(parts_.database, "domain", domain.name, domain.id),
                domain.description, domain.style, domain.disabled, domain.id)
      .Run();
  parts_.journal.Write(caller.name, "change", SubjectOf(domain), changes);
  return domain;
}

void DomainStore::Delete(const Caller& caller, const ObjectVersion& domain, const Progress& progress) {
  parts_.rights.Require(caller, DeleteDomains);
  DomainRecord stored = Require(domain);
  JsonObject before = Fields(stored);
  DomainRemover(parts_.database).Remove(stored.id, before, progress);
  parts_.journal.Write(caller.name, "delete", SubjectOf(stored), before);
}

}  // namespace mindloft
