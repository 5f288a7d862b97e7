#include "backend/directory/store/NameKeys.h"

#include "backend/directory/FoldedText.h"

namespace mindloft {

std::string FreeNameKey(sqlite::Database& database, const std::string& table, const std::string& name,
                        ObjectId self, ObjectId domain) {
  std::string key = FoldedText(name);
  auto other = database.Prepare("SELECT 1 FROM " + table + " WHERE name_key = ?1 AND id <> ?2" +
                                (domain ? " AND domain = ?3" : ""));
  other->BindAll(key, self);
  if (domain) other->Bind(2, domain);
  if (other->Step()) throw Error(ErrorNumber::NameExists, table, {name});
  return key;
}

}  // namespace mindloft
