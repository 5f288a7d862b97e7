#include <fstream>

#include "tests/directory/DirectoryFixture.h"
#include "tests/directory/FaultyFiles.h"
#include "tests/support/ChildProcess.h"

namespace mindloft::test {
namespace {

namespace fs = std::filesystem;

struct Change {
  const char* name;
  std::function<void(Directory&, SessionId)> run;
  const char* happened;  ///< SQL that gives 1 when the change is in the file, 0 when nothing of it is
};

const Change kChanges[] = {
    {"create user",
     [](Directory& d, SessionId s) { d.CreateUser(s, {.name = "new", .fullName = "New User"}, ""); },
     "SELECT count(*) FROM user WHERE name = 'new'"},
    {"delete users",
     [](Directory& d, SessionId s) {
       std::vector<ObjectVersion> all;
       for (const auto& user : d.UserPage(s, {.filter = "victim"}, 0, 50))
         all.push_back({user.id, user.version});
       d.DeleteUsers(s, all, {});
     },
     "SELECT CASE count(*) WHEN 0 THEN 1 WHEN 20 THEN 0 ELSE 2 END FROM user WHERE name LIKE 'victim%'"},
    {"copy domain",
     [](Directory& d, SessionId s) {
       d.CreateDomain(s, {.name = "Copy"}, {1, true, true, true}, {});
     },
     "SELECT CASE WHEN count(*) = 0 THEN 0 WHEN (SELECT count(*) FROM domain_user WHERE domain = 2) = 20 "
     "THEN 1 ELSE 2 END FROM domain WHERE name = 'Copy'"},
    {"delete domain",
     [](Directory& d, SessionId s) {
       d.DeleteDomain(s, {1, 2}, {});
     },
     "SELECT CASE WHEN count(*) = 20 THEN 0 WHEN count(*) = 0 AND NOT EXISTS (SELECT 1 FROM domain WHERE id "
     "= 1) "
     "THEN 1 ELSE 2 END FROM domain_user WHERE domain = 1"},
};

class FaultTest : public DirectoryFixture {
 protected:
  FaultTest() {
    AddDomain("Domain");
    std::vector<ObjectId> victims;
    for (int i = 0; i < 20; ++i) victims.push_back(AddUser("victim" + std::to_string(i)).id);
    ChangeMember(Membership::DomainUsers, 1, victims, {});
    AddMember(Membership::GroupMembers, 1, victims[0]);
    directory_.reset();
  }
};

TEST_F(FaultTest, AFailureAtAnyWriteLeavesTheChangeWholeOrAbsent) {
  FaultyFiles faults;
  // The session is opened before the fault; the file is copied back for each case.
  const fs::path prepared = folder_ / "prepared";
  fs::copy_file(file_, prepared);
  for (const auto& change : kChanges) {
    for (int code : {SQLITE_FULL, SQLITE_IOERR_WRITE}) {
      bool failed = true;
      for (int write = 1; failed; ++write) {
        SCOPED_TRACE(std::string(change.name) + ", write " + std::to_string(write));
        directory_.reset();
        for (const char* suffix : {"", "-wal", "-shm"}) fs::remove(file_.string() + suffix);
        fs::copy_file(prepared, file_);
        directory_ = SqliteDirectory::Open(file_);
        SessionId session = directory_->Login("admin", kPassword);
        faults.FailFrom(write, code);
        ErrorNumber number = NumberOf([&] { change.run(*directory_, session); });
        failed = number != ErrorNumber{};
        EXPECT_EQ(failed, faults.Writes() >= write) << "every failure is told";
        if (failed) {
          EXPECT_TRUE(number == ErrorNumber::DiskFull || number == ErrorNumber::Storage ||
                      number == ErrorNumber::PathAccess)
              << static_cast<int>(number);
        }
        // The process ends with the disk still failing; later it starts again on a good one.
        directory_.reset();
        faults.FailFrom(0, 0);
        directory_ = SqliteDirectory::Open(file_);
        EXPECT_EQ(directory_->Check(), std::vector<std::string>());
        std::string state = SqlText(change.happened);
        EXPECT_TRUE(state == "1" || (failed && state == "0")) << state;
        if (::testing::Test::HasFailure()) return;
      }
    }
  }
}

TEST_F(FaultTest, TheSameObjectGoesOnAfterAFullDisk) {
  FaultyFiles faults;
  directory_ = SqliteDirectory::Open(file_);
  SessionId session = directory_->Login("admin", kPassword);
  std::int64_t users = directory_->Count(session, {});
  faults.FailFrom(1, SQLITE_FULL);
  EXPECT_EQ(NumberOf([&] { directory_->CreateUser(session, {.name = "new"}, ""); }), ErrorNumber::DiskFull);
  EXPECT_EQ(directory_->Count(session, {}), users);
  faults.FailFrom(0, 0);
  directory_->CreateUser(session, {.name = "new"}, "");
  EXPECT_EQ(directory_->Count(session, {}), users + 1);
  EXPECT_EQ(directory_->Check(), std::vector<std::string>());
}

TEST_F(FaultTest, CreateLeavesNothingBehind) {
  FaultyFiles faults;
  const fs::path place = folder_ / "place";
  fs::create_directory(place);
  std::ofstream(place / "old", std::ios::binary) << "not a directory";
  bool failed = true;
  // Every write of the first ones, then fewer: hashing the password costs time each time.
  for (int write = 1; failed; write += write < 8 ? 1 : 9) {
    faults.FailFrom(write, SQLITE_FULL);
    failed = NumberOf([&] {
               SqliteDirectory::Create(place / "old", {"admin", kPassword}, true);
             }) != ErrorNumber{};
    faults.FailFrom(0, 0);
    EXPECT_EQ(std::distance(fs::directory_iterator(place), {}), 1) << "write " << write;
    if (failed) {
      EXPECT_EQ(fs::file_size(place / "old"), 15u) << "write " << write;
    }
  }
  EXPECT_EQ(SqliteDirectory::Open(place / "old")->Check(), std::vector<std::string>());
}

TEST_F(FaultTest, AKilledProcessLosesNoChangeThatHadReturned) {
  std::vector<std::string> told;
  {
    ChildProcess writer(ProgramBeside("directory_change_writer"),
                        {file_.string(), "1000", "correcthorsebattery"});
    EXPECT_FALSE(writer.ReadLine()) << "the password is another one";
    EXPECT_EQ(writer.Wait(), 1);
  }
  directory_ = SqliteDirectory::Open(file_);
  SessionId session = directory_->Login("admin", kPassword);
  auto admin = directory_->CurrentUser(session);
  directory_->SetPassword(session, {admin.id, admin.version}, "correcthorsebattery");
  // A second console is open all the time.
  ChildProcess writer(ProgramBeside("directory_change_writer"),
                      {file_.string(), "1000000", "correcthorsebattery"});
  while (told.size() < 200) {
    auto line = writer.ReadLine();
    ASSERT_TRUE(line);
    told.push_back(*line);
    // This console writes in between, too.
    if (told.size() % 50 == 0) {
      directory_->CreateUser(session, {.name = "between" + std::to_string(told.size())}, "");
    }
  }
  writer.Kill();
  while (auto line = writer.ReadLine()) told.push_back(*line);
  EXPECT_EQ(writer.Wait(), -1) << "it was still at work";
  for (const auto& name : told) EXPECT_TRUE(directory_->FindUserByName(session, name)) << name;
  auto rows = directory_->Count(session, {.filter = "w"});
  EXPECT_LE(rows, std::ssize(told) + 1 + 4) << "at most the one in the middle, and the four in between";
  EXPECT_EQ(directory_->Check(), std::vector<std::string>());
  directory_.reset();
  EXPECT_EQ(SqliteDirectory::Open(file_)->Check(), std::vector<std::string>());
}

}  // namespace
}  // namespace mindloft::test
