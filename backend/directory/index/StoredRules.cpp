#include "backend/directory/index/StoredRules.h"

#include <algorithm>

#include "backend/directory/collation/Collator.h"
#include "backend/directory/index/OrderBlocks.h"
#include "backend/directory/index/SearchTexts.h"

namespace mindloft {
namespace {

/// Whether this program orders as the one did that stored this.
bool IsCurrent(std::int64_t number, std::string_view edition) {
  return edition == Collator::Edition() &&
         std::ranges::any_of(kLanguageRules, [number](auto rules) { return std::int64_t(rules) == number; });
}

}  // namespace

void StoredRules::CreateTable(sqlite::Database& database) {
  database.Execute("CREATE TABLE user_rules(id INTEGER PRIMARY KEY, edition TEXT NOT NULL)");
}

std::vector<StoredRules::Row> StoredRules::Rows() {
  std::vector<Row> rows;
  auto select = database_.Prepare("SELECT id,edition FROM user_rules ORDER BY id");
  while (select->Step()) rows.push_back({select->Int(0), IsCurrent(select->Int(0), select->TextView(1))});
  return rows;
}

std::vector<LanguageRules> StoredRules::Current() {
  std::vector<LanguageRules> current;
  for (const auto& row : Rows()) {
    if (row.current) current.push_back(static_cast<LanguageRules>(row.number));
  }
  return current;
}

bool StoredRules::Has(LanguageRules rules) {
  const auto number = static_cast<std::int64_t>(rules);
  auto select = database_.Prepare("SELECT edition FROM user_rules WHERE id=?");
  select->BindAll(number);
  return select->Step() && IsCurrent(number, select->TextView(0));
}

void StoredRules::Add(LanguageRules rules) {
  database_.Prepare("INSERT OR REPLACE INTO user_rules(id,edition) VALUES(?,?)")
      ->BindAll(static_cast<std::int64_t>(rules), Collator::Edition())
      .Run();
}

void StoredRules::RemoveNumber(std::int64_t number) {
  OrderBlocks::RemoveAll(database_, number);
  // The texts in neutral folding serve all other rules too.
  if (number == static_cast<std::int64_t>(LanguageRules::Turkish)) {
    SearchTexts(database_, Folding::Turkish).RemoveAll();
  }
  database_.Prepare("DELETE FROM user_rules WHERE id=?")->BindAll(number).Run();
}

void StoredRules::Remove(LanguageRules rules) {
  RemoveNumber(static_cast<std::int64_t>(rules));
}

void StoredRules::RemoveAll() {
  for (const auto& row : Rows()) RemoveNumber(row.number);
}

void StoredRules::RemoveForeign() {
  for (const auto& row : Rows()) {
    if (!row.current) RemoveNumber(row.number);
  }
}

}  // namespace mindloft
