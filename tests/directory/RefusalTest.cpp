#include <array>
#include <fstream>
#include <sstream>

#include "backend/directory/file/Schema.h"
#include "tests/directory/DirectoryFixture.h"
#include "tests/support/OrdinaryUser.h"

namespace mindloft::test {
namespace {

namespace fs = std::filesystem;

std::string Content(const fs::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

class RefusalTest : public ::testing::Test {
 protected:
  /// A good directory's bytes.
  std::string Good() {
    CopyNewDirectory(folder_ / "good");
    std::string bytes = Content(folder_ / "good");
    fs::remove(folder_ / "good");
    return bytes;
  }
  TemporaryFolder folder_;
};

TEST_F(RefusalTest, RefusedFilesStayAsTheyAre) {
  const std::string good = Good();
  auto changed = [&](std::size_t at, const std::string& bytes) {
    return std::string(good).replace(at, bytes.size(), bytes);
  };
  struct {
    const char* name;
    std::string content;
    ErrorNumber expected;
  } const cases[] = {
      {"empty", "", ErrorNumber::DirectoryForeign},
      {"text", "Dear diary,\nnothing happened today.\n", ErrorNumber::DirectoryForeign},
      {"long text", std::string(100'000, 'x'), ErrorNumber::DirectoryForeign},
      {"50 bytes", good.substr(0, 50), ErrorNumber::DirectoryForeign},
      {"other application", changed(68, std::string(4, '\0')), ErrorNumber::DirectoryForeign},
      {"newer", changed(60, std::string("\0\0\0\x7f", 4)), ErrorNumber::DirectoryNewer},
      {"no schema", changed(60, std::string(4, '\0')), ErrorNumber::DirectoryDamaged},
      {"header only", good.substr(0, 100), ErrorNumber::DirectoryDamaged},
      {"half", good.substr(0, good.size() / 2), ErrorNumber::DirectoryDamaged},
      {"a byte less", good.substr(0, good.size() - 1), ErrorNumber::DirectoryDamaged},
      {"garbage in page 1", changed(100, std::string(4000, '\x5a')), ErrorNumber::DirectoryDamaged},
      {"garbage in page 2", changed(kPageSize, std::string(kPageSize, '\x5a')),
       ErrorNumber::DirectoryDamaged},
      {"bad page size", changed(16, std::string("\x01\x01", 2)), ErrorNumber::DirectoryDamaged},
  };
  for (const auto& [name, content, expected] : cases) {
    fs::path file = folder_ / name;
    std::ofstream(file, std::ios::binary) << content;
    auto before = fs::last_write_time(file);
    EXPECT_EQ(NumberOf([&] { SqliteDirectory::Open(file); }), expected) << name;
    EXPECT_EQ(Content(file), content) << name;
    EXPECT_EQ(fs::last_write_time(file), before) << name;
    fs::remove(file);
    EXPECT_TRUE(fs::is_empty(folder_.Path())) << name;
  }
  EXPECT_EQ(NumberOf([&] { SqliteDirectory::Open(folder_ / "missing"); }), ErrorNumber::DirectoryNotFound);
  EXPECT_EQ(NumberOf([&] { SqliteDirectory::Open(folder_.Path()); }), ErrorNumber::DirectoryForeign);
  EXPECT_TRUE(fs::is_empty(folder_.Path()));
}

TEST_F(RefusalTest, ASQLiteFileWithoutOurTablesIsDamaged) {
  fs::path file = folder_ / "tables";
  sqlite::Database(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)
      .Execute(("PRAGMA application_id = " + std::to_string(kApplicationId) +
                "; PRAGMA user_version = 1; CREATE TABLE t (a)")
                   .c_str());
  EXPECT_EQ(NumberOf([&] { SqliteDirectory::Open(file); }), ErrorNumber::DirectoryDamaged);
}

TEST_F(RefusalTest, ReadOnlyPlacesAreTold) {
  using fs::perms;
  constexpr auto readable = perms::owner_read | perms::group_read | perms::others_read;
  constexpr auto writable = perms::owner_write | perms::group_write | perms::others_write;
  constexpr auto open = perms::all;
  struct {
    const char* name;
    perms file, place;
    ErrorNumber expected;
  } const cases[] = {
      {"file", readable, open, ErrorNumber::DirectoryReadOnly},
      {"file and folder", readable, open & ~writable, ErrorNumber::DirectoryReadOnly},
      {"folder", readable | writable, open & ~writable, ErrorNumber::DirectoryReadOnly},
      {"unreadable", perms::none, open, ErrorNumber::PathAccess},
  };
  const auto place = folder_ / "place", file = place / "a.directory";
  fs::create_directory(place);
  CopyNewDirectory(file);
  const std::string content = Content(file);
  int tried = 0;
  for (const auto& [name, ofFile, ofPlace, expected] : cases) {
    SCOPED_TRACE(name);
    fs::permissions(file, ofFile);
    fs::permissions(place, ofPlace);
    {
      OrdinaryUser user;
      // Not every system knows all of these permissions, or holds everybody to them.
      bool held = !std::ofstream(file, std::ios::app) || !std::ofstream(place / "new");
      if (held) {
        EXPECT_EQ(NumberOf([&] { SqliteDirectory::Open(file); }), expected);
        ++tried;
      }
    }
    fs::permissions(place, open);
    fs::permissions(file, readable | writable);
    fs::remove(place / "new");
    EXPECT_EQ(std::distance(fs::directory_iterator(place), {}), 1);
    EXPECT_EQ(Content(file), content);
  }
  EXPECT_EQ(SqliteDirectory::Open(file)->Check(), std::vector<std::string>());
  if (tried == 0) GTEST_SKIP() << "this system holds this user to no permissions";
}

TEST_F(RefusalTest, TheEnginesAnswersHaveNumbers) {
  for (auto [code, expected] : {std::pair{SQLITE_READONLY, ErrorNumber::DirectoryReadOnly},
                                {SQLITE_READONLY_DIRECTORY, ErrorNumber::DirectoryReadOnly},
                                {SQLITE_CANTOPEN, ErrorNumber::PathAccess},
                                {SQLITE_FULL, ErrorNumber::DiskFull},
                                {SQLITE_BUSY_SNAPSHOT, ErrorNumber::DirectoryBusy},
                                {SQLITE_CORRUPT_INDEX, ErrorNumber::DirectoryDamaged},
                                {SQLITE_IOERR_READ, ErrorNumber::Storage}}) {
    EXPECT_EQ(NumberOf([code = code] { sqlite::ThrowLastError(nullptr, code, "test"); }), expected) << code;
  }
}

TEST_F(RefusalTest, CreateKeepsWhatIsThere) {
  fs::path file = folder_ / "deep" / "er";
  file /= "a.directory";
  EXPECT_EQ(NumberOf([&] {
              SqliteDirectory::Create(file, {"admin", "short"});
            }),
            ErrorNumber::PasswordTooShort);
  EXPECT_EQ(NumberOf([&] { SqliteDirectory::Create(file, {"", kPassword}); }), ErrorNumber::NameMissing);
  SqliteDirectory::Create(file, {"admin", kPassword});
  EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), {}), 1);
  const std::string content = Content(file);
  EXPECT_EQ(NumberOf([&] {
              SqliteDirectory::Create(file, {"other", kPassword});
            }),
            ErrorNumber::DirectoryExists);
  EXPECT_EQ(NumberOf([&] {
              SqliteDirectory::Create(file, {"other", "short"}, true);
            }),
            ErrorNumber::PasswordTooShort);
  EXPECT_EQ(Content(file), content);
  // A crash has left a log beside the old file; the new one must not take it for its own.
  std::ofstream(file.string() + "-wal", std::ios::binary) << std::string(5000, 'w');
  SqliteDirectory::Create(file, {"other", kPassword}, true);
  EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), {}), 1);
  auto directory = SqliteDirectory::Open(file);
  EXPECT_NE(directory->Login("other", kPassword), 0u);
  EXPECT_EQ(directory->Check(), std::vector<std::string>());
  // Windows knows no such bits: there everybody's are set, and the folder's access list counts.
  if ((fs::status(folder_.Path()).permissions() & fs::perms::all) != fs::perms::all) {
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::status(file.parent_path()).permissions(), fs::perms::owner_all);
  }
}

TEST_F(RefusalTest, MigrationsRunOnceInOrderOrNotAtAll) {
  static const Migration kSteps[] = {
      {1, [](sqlite::Database& d) { d.Execute("CREATE TABLE a (x)"); }},
      {2, [](sqlite::Database& d) { d.Execute("ALTER TABLE a ADD y; INSERT INTO a VALUES (1, 2)"); }},
      {3, [](sqlite::Database& d) { d.Execute("UPDATE a SET y = y + 1"); }},
  };
  static const Migration kBroken[] = {kSteps[0], kSteps[1], kSteps[2], {4, [](sqlite::Database& d) {
                                                                          d.Execute("DELETE FROM a");
                                                                          d.Execute("no SQL");
                                                                        }}};
  sqlite::Database database(folder_ / "m", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  Migrate(database, std::span(kSteps, 1));
  EXPECT_EQ(SchemaOf(database), 1);
  for (int i = 0; i < 2; ++i) Migrate(database, kSteps);
  EXPECT_EQ(SchemaOf(database), 3);
  EXPECT_EQ(NumberOf([&] { Migrate(database, kBroken); }), ErrorNumber::Storage);
  EXPECT_EQ(SchemaOf(database), 3);
  auto row = database.Prepare("SELECT y FROM a");
  ASSERT_TRUE(row->Step());
  EXPECT_EQ(row->Int(0), 3);
}

}  // namespace
}  // namespace mindloft::test
