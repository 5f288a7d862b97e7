#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "backend/directory/sqlite/Database.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft {
namespace {

using std::chrono::milliseconds;

TEST(BusyWait, GivesUpInTimeAndGetsItsTurnWhenTheOtherIsDone) {
  const test::TemporaryFolder folder;
  const auto file = folder.Path() / "file";
  constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
  sqlite::Database one(file, kFlags), other(file, kFlags);
  one.Execute("PRAGMA journal_mode=WAL; CREATE TABLE t(x)");
  const auto change = [&] {
    sqlite::Transaction transaction(other);
    other.Execute("INSERT INTO t VALUES(1)");
    transaction.Commit();
  };
  for (const milliseconds patience : {milliseconds(0), milliseconds(20)}) {
    other.WaitWhileBusy(patience);
    const sqlite::Transaction held(one);
    // A wait that has failed takes nothing off the next one.
    for (int attempt = 0; attempt < 2; ++attempt) {
      const auto start = std::chrono::steady_clock::now();
      try {
        change();
        FAIL() << "the file is held";
      } catch (const Error& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::DirectoryBusy);
      }
      EXPECT_GE(std::chrono::steady_clock::now() - start, patience);
    }
  }

  other.WaitWhileBusy(milliseconds(60000));
  std::atomic<bool> held = false, asked = false;
  std::thread holder([&] {
    sqlite::Transaction transaction(one);
    held = true;
    while (!asked) std::this_thread::yield();
    transaction.Commit();
  });
  while (!held) std::this_thread::yield();
  asked = true;
  EXPECT_NO_THROW(change());
  holder.join();
}

}  // namespace
}  // namespace mindloft
