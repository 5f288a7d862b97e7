#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "backend/directory/SqliteDirectory.h"
#include "backend/directory/sqlite/Database.h"
#include "backend/errors/Error.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::test {

inline constexpr const char* kPassword = "correct horse battery";

/// A new directory in a folder of its own, with its administrator "admin" logged in.
class DirectoryFixture : public ::testing::Test {
 protected:
  DirectoryFixture();

  UserRecord AddUser(const std::string& name, const std::string& password = {});
  DomainRecord AddDomain(const std::string& name);
  GroupRecord AddGroup(ObjectId domain, const std::string& name, std::uint32_t privileges = 0);
  void AddMember(Membership membership, ObjectId owner, ObjectId member);
  void ChangeMember(Membership membership, ObjectId owner, std::vector<ObjectId> additions,
                    std::vector<ObjectId> removals);
  /// What is stored now, as a change names it.
  ObjectVersion Now(Membership membership, ObjectId owner);
  /// Changes the file behind the directory's back.
  void Sql(const std::string& sql);
  std::string SqlText(const std::string& sql);
  std::vector<JournalRecord> Journal(std::int64_t count = 1000);

  TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "a.directory";
  std::unique_ptr<SqliteDirectory> directory_;
  SessionId admin_ = 0;
  UserRecord administrator_;
};

/// The error that the work throws; nothing else may come, and nothing is `Unexpected` by itself: "no error"
/// shows as number 0.
Error ErrorOf(const std::function<void()>& work);
ErrorNumber NumberOf(const std::function<void()>& work);

/// Makes a directory file as Create does, from a copy made once: hashing its password is slow.
void CopyNewDirectory(const std::filesystem::path& file);

}  // namespace mindloft::test

namespace mindloft {
/// Test messages show the number.
void PrintTo(ErrorNumber number, std::ostream* stream);
}  // namespace mindloft
