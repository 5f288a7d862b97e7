#include "tests/directory/DirectoryFixture.h"

#include <ostream>

namespace mindloft {

void PrintTo(ErrorNumber number, std::ostream* stream) {
  *stream << "error " << static_cast<int>(number);
}

namespace test {

void CopyNewDirectory(const std::filesystem::path& file) {
  static const TemporaryFolder folder;
  static const std::filesystem::path original = [] {
    auto made = folder / "original.directory";
    SqliteDirectory::Create(made, {"admin", kPassword});
    return made;
  }();
  std::filesystem::copy_file(original, file);
}

DirectoryFixture::DirectoryFixture() {
  CopyNewDirectory(file_);
  directory_ = SqliteDirectory::Open(file_);
  admin_ = directory_->Login("admin", kPassword);
  administrator_ = directory_->CurrentUser(admin_);
}

UserRecord DirectoryFixture::AddUser(const std::string& name, const std::string& password) {
  UserRecord user;
  user.name = name;
  return directory_->CreateUser(admin_, user, password);
}

DomainRecord DirectoryFixture::AddDomain(const std::string& name) {
  DomainRecord domain;
  domain.name = name;
  return directory_->CreateDomain(admin_, domain, {}, {});
}

GroupRecord DirectoryFixture::AddGroup(ObjectId domain, const std::string& name, std::uint32_t privileges) {
  GroupRecord group;
  group.domain = domain;
  group.name = name;
  group.domainPrivileges = privileges;
  return directory_->CreateGroup(admin_, group);
}

ObjectVersion DirectoryFixture::Now(Membership membership, ObjectId owner) {
  switch (membership) {
    case Membership::GroupMembers:
      return {owner, directory_->FindGroup(admin_, owner).value().version};
    case Membership::RoleMembers:
      return {owner, directory_->FindRole(admin_, owner).value().version};
    case Membership::DomainUsers:
      return {owner, directory_->FindDomain(admin_, owner).value().version};
    default:
      return {owner, directory_->FindUser(admin_, owner).value().version};
  }
}

void DirectoryFixture::ChangeMember(Membership membership, ObjectId owner, std::vector<ObjectId> additions,
                                    std::vector<ObjectId> removals) {
  directory_->ChangeMembers(
      admin_, {membership, Now(membership, owner), std::move(additions), std::move(removals)}, {});
}

void DirectoryFixture::AddMember(Membership membership, ObjectId owner, ObjectId member) {
  ChangeMember(membership, owner, {member}, {});
}

void DirectoryFixture::Sql(const std::string& sql) {
  sqlite::Database(file_, SQLITE_OPEN_READWRITE).Execute(sql.c_str());
}

std::string DirectoryFixture::SqlText(const std::string& sql) {
  sqlite::Database database(file_, SQLITE_OPEN_READWRITE);
  sqlite::Statement row(database.Handle(), sql);
  return row.Step() ? row.Text(0) : std::string();
}

std::vector<JournalRecord> DirectoryFixture::Journal(std::int64_t count) {
  return directory_->JournalPage(admin_, {.collection = Collection::Journal}, 0, count);
}

Error ErrorOf(const std::function<void()>& work) {
  try {
    work();
  } catch (const Error& error) {
    return error;
  }
  return Error(ErrorNumber{});
}

ErrorNumber NumberOf(const std::function<void()>& work) {
  return ErrorOf(work).Number();
}

}  // namespace test
}  // namespace mindloft
