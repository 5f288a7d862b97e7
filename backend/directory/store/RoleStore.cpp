#include "backend/directory/store/RoleStore.h"

#include "backend/directory/store/PrivilegeWords.h"
#include "backend/directory/store/RecordReader.h"

namespace mindloft {
namespace {

RoleRecord ReadRole(const sqlite::Statement& row) {
  auto privileges = static_cast<std::uint32_t>(row.Int(4));
  return {.id = row.Int(0),
          .version = row.Int(1),
          .name = row.Text(2),
          .builtIn = row.Int(3) != 0,
          .sysPrivileges = privileges,
          .privilegeText = PrivilegeWords(privileges)};
}

}  // namespace

std::vector<RoleRecord> RoleStore::Read(const std::vector<ObjectId>& ids) {
  return ReadRecords(parts_.database, "SELECT id, version, name, built_in, privileges FROM role WHERE id = ?",
                     ids, ReadRole);
}

std::optional<RoleRecord> RoleStore::Find(ObjectId id) {
  return FirstOf(Read({id}));
}

}  // namespace mindloft
