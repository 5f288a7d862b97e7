#include "backend/directory/file/StartingStyles.h"

#include <utility>
#include <vector>

#include "backend/directory/FoldedText.h"
#include "backend/directory/store/Journal.h"

namespace mindloft {
namespace {

struct StartingStyle {
  const char *name, *definition;
  const char* former;  ///< its definition in the first set; null: it was not in it
};

constexpr StartingStyle kStyles[] = {
    {"Plain", R"(<style font="sans-serif" size="10" colour="#202020" background="#ffffff"/>)",
     R"(<style font="Segoe UI" size="10" colour="#202020" background="#ffffff"/>)"},
    {"Paper",
     R"(<style font="serif" size="11" colour="#332f28" firstLineIndent="2" spaceAfter="1" background="#faf6ec"/>)",
     R"(<style font="Georgia" size="11" colour="#332f28" background="#faf6ec"/>)"},
    {"Slate", R"(<style font="sans-serif" size="10" colour="#f2f4f7" leftIndent="1" background="#3b4754"/>)",
     R"(<style font="Segoe UI" size="10" colour="#f2f4f7" background="#3b4754"/>)"},
    {"Forest",
     R"(<style font="sans-serif" size="10" colour="#173620" leftIndent="1" spaceAfter="1" background="#eef6ee"/>)",
     R"(<style font="Verdana" size="10" colour="#173620" background="#eef6ee"/>)"},
    {"Harbour", R"(<style font="sans-serif" size="10" colour="#0f2f4f" background="#e9f1f8"/>)",
     R"(<style font="Tahoma" size="10" colour="#0f2f4f" background="#e9f1f8"/>)"},
    {"Large print",
     R"(<style font="sans-serif" size="16" colour="#000000" spaceAfter="1" background="#ffffff"/>)",
     R"(<style font="Segoe UI" size="16" colour="#000000" background="#ffffff"/>)"},
    {"Typewriter", R"(<style font="monospace" size="10" colour="#202020" background="#ffffff"/>)", nullptr},
    {"Quotation",
     R"(<style font="serif" size="11" italic="true" colour="#404040" leftIndent="4" rightIndent="4" )"
     R"(spaceBefore="1" spaceAfter="1" background="#ffffff"/>)",
     nullptr},
    {"Notice",
     R"(<style font="sans-serif" size="12" bold="true" colour="#7a1616" alignment="2" spaceBefore="1" )"
     R"(spaceAfter="1" background="#fdf1f0"/>)",
     nullptr},
};

/// The changes are nobody's: the program makes them when it opens the directory.
constexpr const char* kNobody = "";

struct StoredStyle {
  ObjectId id;
  std::string name;
};

std::vector<StoredStyle> StylesOf(sqlite::Database& database, const char* definition) {
  std::vector<StoredStyle> found;
  auto row = database.Prepare("SELECT id, name FROM style WHERE definition = ?");
  row->BindAll(definition);
  while (row->Step()) found.push_back({row->Int(0), row->Text(1)});
  return found;
}

void Renew(sqlite::Database& database, const StartingStyle& style) {
  for (const auto& [id, name] : StylesOf(database, style.former)) {
    database.Prepare("UPDATE style SET definition = ?, version = version + 1 WHERE id = ?")
        ->BindAll(style.definition, id)
        .Run();
    JsonObject before, after;
    before.Add("definition", style.former);
    after.Add("definition", style.definition);
    Journal(database).Write(kNobody, "change", {"style", id, name}, before, after);
  }
}

ObjectId Add(sqlite::Database& database, const StartingStyle& style) {
  database.Prepare("INSERT INTO style (version, name, name_key, definition) VALUES (1, ?, ?, ?)")
      ->BindAll(style.name, FoldedText(style.name), style.definition)
      .Run();
  return database.LastInsertId();
}

bool IsEmpty(sqlite::Database& database, const char* oneRow) {
  return !database.Prepare(oneRow)->Step();
}

}  // namespace

void AddStartingStyles(sqlite::Database& database) {
  for (const auto& style : kStyles) Add(database, style);
}

void RenewStartingStyles(sqlite::Database& database) {
  // One in the making gets its styles with the rest of what it begins with.
  if (IsEmpty(database, "SELECT 1 FROM user LIMIT 1")) return;
  if (!IsEmpty(database, "SELECT 1 FROM style LIMIT 1")) {
    for (const auto& style : kStyles)
      if (style.former) Renew(database, style);
    return;
  }
  for (const auto& style : kStyles) {
    JsonObject after;
    after.Add("name", style.name);
    after.Add("definition", style.definition);
    Journal(database).Write(kNobody, "create", {"style", Add(database, style), style.name}, {}, after);
  }
}

}  // namespace mindloft
