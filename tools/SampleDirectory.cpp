#include "tools/SampleDirectory.h"

#include <algorithm>
#include <vector>

#include "backend/directory/DirectoryLoader.h"
#include "backend/directory/SqliteDirectory.h"
#include "backend/errors/Error.h"
#include "platform/DurableRename.h"
#include "platform/Random.h"
#include "tools/SampleDomains.h"
#include "tools/SampleUsers.h"

namespace mindloft {
namespace {

constexpr const char* kAdministrator = "admin";

/// Users who hold a role, one each as far as there are roles.
struct RoleMember {
  const char* name;
  const char* fullName;
  const char* department;
};
constexpr RoleMember kRoleMembers[] = {{"auditor", "Amélie d’Arcy", "Internal Audit"},
                                       {"librarian", "Ingrid Sørensen", "Knowledge Office"},
                                       {"helpdesk", "Tomáš Beneš", "Customer Support"}};

/// 24 characters of 5 random bits each; characters that look alike are left out.
std::string NewPassword() {
  constexpr std::string_view kCharacters = "abcdefghijkmnpqrstuvwxyz23456789";
  static_assert(kCharacters.size() == 32);
  auto password = platform::RandomBytes(24);
  for (auto& c : password) c = kCharacters[static_cast<unsigned char>(c) % kCharacters.size()];
  return password;
}

/// What a new directory holds from the start.
struct Beginning {
  ObjectId administrator = 0;
  std::vector<ObjectId> roles;  ///< all but those with every privilege
};

Beginning ReadBeginning(const std::filesystem::path& file, const std::string& password) {
  const auto directory = SqliteDirectory::Open(file);
  const auto session = directory->Login(kAdministrator, password);
  Beginning beginning;
  beginning.administrator = directory->CurrentUser(session).id;
  Query roles;
  roles.collection = Collection::Roles;
  for (const auto& role : directory->RolePage(session, roles, 0, 100)) {
    if (role.sysPrivileges != AllSysPrivileges) beginning.roles.push_back(role.id);
  }
  return beginning;
}

/// Fills one directory.
class Filler {
 public:
  Filler(const std::filesystem::path& file, const SampleOptions& options, const Beginning& beginning)
      : loader_(file), options_(options), beginning_(beginning), random_(~options.seed) {}

  void Fill() {
    AddUsers();
    for (std::int64_t i = 0; i < options_.domains; ++i) AddDomain(i);
    loader_.Finish();
  }

 private:
  void AddUsers() {
    users_.reserve(static_cast<std::size_t>(options_.users));
    users_.push_back(beginning_.administrator);
    std::size_t role = 0;
    for (const auto& member : kRoleMembers) {
      if (static_cast<std::int64_t>(users_.size()) == options_.users) return;
      UserRecord user;
      user.name = member.name;
      user.fullName = member.fullName;
      user.department = member.department;
      user.email = user.name + "@example.org";
      users_.push_back(loader_.AddUser(user));
      if (!beginning_.roles.empty()) {
        loader_.AddRoleMember(beginning_.roles[role++ % beginning_.roles.size()], users_.back());
      }
    }
    SampleUsers source(options_.seed);
    while (static_cast<std::int64_t>(users_.size()) < options_.users) {
      users_.push_back(loader_.AddUser(source.Next()));
    }
  }

  void AddDomain(std::int64_t number) {
    const auto domain = loader_.AddDomain(SampleDomain(number));
    const auto members = DomainUsers();
    for (const auto user : members) loader_.AddDomainUser(domain, user);
    // Each domain has its own first user for an administrator.
    loader_.AddGroupMember(loader_.AdministratorsGroup(domain), members.front());
    for (std::int64_t i = 0; i < options_.groups; ++i) {
      const auto group = loader_.AddGroup(SampleGroup(domain, i));
      // The further a group stands down the list, the fewer members it has.
      const auto step = static_cast<std::size_t>(2 + i % 10);
      for (auto at = random_.Below(step); at < members.size(); at += step) {
        loader_.AddGroupMember(group, members[at]);
      }
    }
  }

  /// Some hundred users from all over the directory, each once.
  std::vector<ObjectId> DomainUsers() {
    const auto count = std::min<std::size_t>(users_.size(), 80 + random_.Below(320));
    const auto step = users_.size() / count;
    const auto first = random_.Below(users_.size());
    std::vector<ObjectId> members;
    for (std::size_t i = 0; i < count; ++i) members.push_back(users_[(first + i * step) % users_.size()]);
    return members;
  }

  DirectoryLoader loader_;
  const SampleOptions& options_;
  const Beginning& beginning_;
  SampleRandom random_;
  std::vector<ObjectId> users_;
};

std::filesystem::path Beside(std::filesystem::path file, const char* ending) {
  return file += ending;
}

void RemoveWithLogs(const std::filesystem::path& file) {
  std::error_code ignored;
  for (const char* ending : {"", "-wal", "-shm", "-journal"})
    std::filesystem::remove(Beside(file, ending), ignored);
}

bool Exists(const std::filesystem::path& file) {
  std::error_code ignored;
  return std::filesystem::exists(file, ignored);
}

}  // namespace

std::string MakeSampleDirectory(const std::filesystem::path& file, const SampleOptions& options) {
  if (!options.overwrite && Exists(file)) throw Error(ErrorNumber::DirectoryExists);
  const auto unfinished = Beside(file, ".unfinished");
  auto password = NewPassword();
  try {
    SqliteDirectory::Create(unfinished, {kAdministrator, password}, true);
    Filler(unfinished, options, ReadBeginning(unfinished, password)).Fill();
    if (options.overwrite) {
      // A log that a crash has left behind would be taken for the new file's.
      for (const char* ending : {"-wal", "-shm"}) std::filesystem::remove(Beside(file, ending));
    }
    if (!platform::DurableRename(unfinished, file, options.overwrite))
      throw Error(ErrorNumber::DirectoryExists);
  } catch (...) {
    RemoveWithLogs(unfinished);
    throw;
  }
  return password;
}

}  // namespace mindloft
