#include "backend/directory/store/ConfigurationStore.h"

#include "backend/directory/store/TextRules.h"

namespace mindloft {

Directory::UserConfiguration ConfigurationStore::Load(const Caller& caller) {
  auto row = parts_.database.Prepare("SELECT version, xml FROM user_configuration WHERE user = ?");
  row->BindAll(caller.user);
  if (!row->Step()) return {};
  return {row->Int(0), row->Text(1)};
}

Directory::UserConfiguration ConfigurationStore::Store(const Caller& caller,
                                                       const Directory::UserConfiguration& configuration) {
  const JournalSubject subject{"configuration", caller.user, caller.name};
  Directory::UserConfiguration stored = Load(caller);
  parts_.journal.RequireVersion(subject, stored.version, configuration.version);
  FieldChanges changes;
  changes.Put("xml", stored.xml,
              std::optional(CheckedText(configuration.xml, "configuration", kConfigurationLength)));
  if (changes.Empty()) return stored;
  ++stored.version;
  parts_.database
      .Prepare(
          "INSERT INTO user_configuration (user, version, xml) VALUES (?1, ?2, ?3) "
          "ON CONFLICT (user) DO UPDATE SET version = ?2, xml = ?3")
      ->BindAll(caller.user, stored.version, stored.xml)
      .Run();
  parts_.journal.Write(caller.name, "change", subject, changes);
  return stored;
}

}  // namespace mindloft
