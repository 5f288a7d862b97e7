#include "backend/directory/store/CollectionWindows.h"

#include <algorithm>
#include <unordered_map>

#include "backend/directory/FoldedText.h"
#include "backend/directory/collation/Collator.h"
#include "backend/directory/store/PrivilegeWords.h"

namespace mindloft {
namespace {

/// As many as a main window with a property sheet and a picker above it shows.
constexpr std::size_t kKeptWindows = 8;

/// Identifier, name, the other listed text, and the state of domains or privileges of roles, of all rows
/// of the scope ?1.
const char* RowsSql(Collection collection) {
  switch (collection) {
    case Collection::Roles:
      return "SELECT id, name, '', privileges FROM role WHERE ?1 IS NOT NULL";
    case Collection::UserRoles:
      return "SELECT r.id, r.name, '', r.privileges FROM role_member m JOIN role r ON r.id = m.role "
             "WHERE m.user = ?1";
    case Collection::Domains:
      return "SELECT id, name, description, disabled FROM domain WHERE ?1 IS NOT NULL";
    case Collection::UserDomains:
      return "SELECT d.id, d.name, d.description, d.disabled FROM domain_user m JOIN domain d ON d.id = "
             "m.domain "
             "WHERE m.user = ?1";
    case Collection::StyleDomains:
      return "SELECT id, name_key, description, disabled FROM domain WHERE style = ?1";
    case Collection::DomainGroups:
      return "SELECT id, name, description, 0 FROM grp WHERE domain = ?1";
    case Collection::UserGroups:
      return "SELECT g.id, g.name, g.description, 0 FROM group_member m JOIN grp g ON g.id = m.grp "
             "WHERE m.user = ?1";
    case Collection::Styles:
      return "SELECT id, name, '', 0 FROM style WHERE ?1 IS NOT NULL";
    case Collection::Journal:
      return "SELECT id, name, who, 0 FROM journal WHERE ?1 IS NOT NULL";
    default:
      break;
  }
  throw Error(ErrorNumber::TypeMismatch, "no window on users");
}

/// The order of a query, or by name where the rows lack its field.
Order OrderOf(const Query& query) {
  const bool domains = query.collection == Collection::Domains ||
                       query.collection == Collection::UserDomains ||
                       query.collection == Collection::StyleDomains;
  const bool groups =
      query.collection == Collection::DomainGroups || query.collection == Collection::UserGroups;
  const bool roles = query.collection == Collection::Roles || query.collection == Collection::UserRoles;
  const bool offered = (query.order == Order::Description && (domains || groups)) ||
                       (query.order == Order::State && domains) ||
                       (query.order == Order::Privileges && roles);
  return offered ? query.order : Order::Name;
}

}  // namespace

const CollectionWindows::Window& CollectionWindows::Get(const Query& query, LanguageRules rules) {
  if (sqlite::FileState now = database_.State(); now != state_) {
    windows_.clear();
    state_ = now;
  }
  auto found = std::ranges::find_if(
      windows_, [&](const Window& window) { return window.rules == rules && window.query == query; });
  if (found != windows_.end()) {
    windows_.splice(windows_.begin(), windows_, found);
  } else {
    windows_.push_front({query, rules, Build(query, rules)});
    if (windows_.size() > kKeptWindows) windows_.pop_back();
  }
  return windows_.front();
}

std::vector<CollectionWindows::Row> CollectionWindows::Build(const Query& query, LanguageRules rules) {
  const bool journal = query.collection == Collection::Journal;
  const Order order = OrderOf(query);
  const Folding folding = FoldingOf(rules);
  const Collator& collator = Collator::Of(rules);
  const std::string filter = FoldedText(query.filter, folding);
  std::vector<Row> rows;
  auto row = database_.Prepare(RowsSql(query.collection));
  row->BindAll(query.scope);
  while (row->Step()) {
    std::string name = FoldedText(row->TextView(1), folding);
    std::string other;
    if (order == Order::Description || !filter.empty()) other = FoldedText(row->TextView(2), folding);
    if (name.find(filter) == std::string::npos && other.find(filter) == std::string::npos) continue;
    std::string text = std::move(name);
    if (order == Order::Description) text = std::move(other);
    if (order == Order::Privileges) {
      text = FoldedText(PrivilegeWords(static_cast<std::uint32_t>(row->Int(3))), folding);
    }
    // The journal is ordered by identifier alone.
    rows.push_back({order == Order::State && row->Int(3) != 0,
                    journal ? std::string() : collator.SortKey(text), row->Int(0)});
  }
  if (query.descending || journal) {
    std::ranges::sort(rows, std::ranges::greater());
  } else {
    std::ranges::sort(rows);
  }
  return rows;
}

std::vector<ObjectId> CollectionWindows::Page(const Query& query, std::int64_t first, std::int64_t count,
                                              LanguageRules rules) {
  const auto& rows = Get(query, rules).rows;
  std::int64_t size = std::ssize(rows);
  first = std::clamp<std::int64_t>(first, 0, size);
  count = std::clamp<std::int64_t>(count, 0, size - first);
  std::vector<ObjectId> ids;
  for (std::int64_t i = first; i < first + count; ++i) ids.push_back(rows[static_cast<std::size_t>(i)].id);
  return ids;
}

std::int64_t CollectionWindows::FindPrefix(const Query& query, std::string_view prefix, std::int64_t from,
                                           LanguageRules rules) {
  const auto& rows = Get(query, rules).rows;
  if (rows.empty() || query.collection == Collection::Journal) return -1;
  const std::string key = Collator::Of(rules).PrefixKey(FoldedText(prefix, FoldingOf(rules)));
  auto fits = [&](const Row& row) { return row.key.starts_with(key); };
  auto start = rows.begin() + std::clamp<std::int64_t>(from, 0, std::ssize(rows));
  auto found = std::find_if(start, rows.end(), fits);
  if (found == rows.end()) {
    found = std::find_if(rows.begin(), start, fits);
    if (found == start) return -1;
  }
  return found - rows.begin();
}

std::vector<std::int64_t> CollectionWindows::PositionsOf(const Query& query,
                                                         const std::vector<ObjectId>& objects,
                                                         LanguageRules rules) {
  std::unordered_map<ObjectId, std::int64_t> places;
  for (const ObjectId object : objects) places.emplace(object, -1);
  std::int64_t place = 0;
  for (const auto& row : Get(query, rules).rows) {
    if (const auto sought = places.find(row.id); sought != places.end()) sought->second = place;
    ++place;
  }
  std::vector<std::int64_t> positions;
  positions.reserve(objects.size());
  for (const ObjectId object : objects) positions.push_back(places.at(object));
  return positions;
}

}  // namespace mindloft
