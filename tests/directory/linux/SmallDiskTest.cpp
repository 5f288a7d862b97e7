#include "tests/directory/DirectoryFixture.h"
#include "tests/support/linux/SmallDisk.h"

namespace mindloft::test {
namespace {

namespace fs = std::filesystem;

using SmallDiskTest = DirectoryFixture;

TEST_F(SmallDiskTest, ChangesThatFindNoRoomAreToldAndLoseNothing) {
  // The sizes end the file or its log at any place of a change.
  std::int64_t stored = 0;
  for (std::uint64_t size = 0; size < 400'000; size += 20'011) {
    SCOPED_TRACE(size);
    ErrorNumber number{};
    std::int64_t made = stored;
    {
      SmallDisk disk(size);
      number = NumberOf([&] {
        for (int i = 0; i < 40; ++i) {
          directory_->CreateUser(admin_, {.name = "user" + std::to_string(made)}, "");
          ++made;
        }
      });
      EXPECT_TRUE(made == stored + 40 || number == ErrorNumber::DiskFull || number == ErrorNumber::Storage)
          << static_cast<int>(number);
      EXPECT_EQ(directory_->Count(admin_, {.filter = "user"}), made);
    }
    stored = made;
  }
  EXPECT_GT(stored, 0);
  EXPECT_EQ(directory_->Check(), std::vector<std::string>());
  directory_->CreateUser(admin_, {.name = "afterwards"}, "");
  directory_.reset();
  directory_ = SqliteDirectory::Open(file_);
  EXPECT_EQ(directory_->Check(), std::vector<std::string>());
  EXPECT_EQ(SqlText("SELECT count(*) FROM user WHERE name LIKE 'user%'"), std::to_string(stored));
}

TEST_F(SmallDiskTest, ANewDirectoryThatFindsNoRoomLeavesTheOldOne) {
  directory_.reset();
  const auto size = fs::file_size(file_);
  {
    SmallDisk disk(size / 2);
    auto error = ErrorOf([&] { SqliteDirectory::Create(file_, {"other", kPassword}, true); });
    EXPECT_TRUE(error.Number() == ErrorNumber::DiskFull || error.Number() == ErrorNumber::Storage)
        << static_cast<int>(error.Number());
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), {}), 1);
  }
  EXPECT_NE(SqliteDirectory::Open(file_)->Login("admin", kPassword), 0u);
}

}  // namespace
}  // namespace mindloft::test
