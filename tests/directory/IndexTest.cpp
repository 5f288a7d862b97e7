#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <random>

#include "IndexModel.h"
#include "backend/directory/index/UserIndex.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft {
namespace {

using test::IndexModel;

/// Small blocks, so that a few hundred users split and join them all the time.
constexpr std::size_t kSmallBlock = 4;

constexpr Order kAllOrders[] = {Order::Name, Order::FullName, Order::Description};

UserTexts TextsOf(const UserRecord& user) {
  return {user.name, user.fullName, user.description};
}

class IndexTest : public testing::Test {
 protected:
  template <typename List>
  auto Pick(const List& list) {
    return list[random_() % std::size(list)];
  }

  /// Short texts of few letters, so that many are equal or start alike.
  std::string RandomText() {
    static const std::string kPieces[] = {"a",
                                          "B",
                                          "ab",
                                          " ",
                                          "é",
                                          "E\xCC\x81",
                                          "李",
                                          "Ж",
                                          "ß",
                                          "\x1F",
                                          "\n",
                                          "\xFF",
                                          "%",
                                          "_",
                                          "*",
                                          "'",
                                          "\"",
                                          "😀",
                                          "I",
                                          "İ",
                                          "i",
                                          "ı",
                                          "ç",
                                          "Ö",
                                          "王",
                                          "カ",
                                          "が",
                                          "ー",
                                          "ا",
                                          "ب",
                                          "-",
                                          "\xEF\xBF\xBF",
                                          "long enough to fill a register"};
    std::string text;
    for (auto count = random_() % 4; count > 0; --count) text += Pick(kPieces);
    return text;
  }

  UserRecord RandomUser(ObjectId id) {
    UserRecord user;
    user.id = id;
    user.name = RandomText();
    user.fullName = RandomText();
    user.description = RandomText();
    return user;
  }

  void Add(const UserRecord& user) {
    test::StoreUser(database_, user);
    index_.Insert(user.id, TextsOf(user));
    model_.users[user.id] = user;
  }
  void Change(const UserRecord& user) {
    index_.Change(user.id, TextsOf(model_.users[user.id]), TextsOf(user));
    database_.Prepare("UPDATE user SET name=?2,full_name=?3,description=?4 WHERE id=?1")
        ->BindAll(user.id, user.name, user.fullName, user.description)
        .Run();
    model_.users[user.id] = user;
  }
  void Remove(const std::vector<ObjectId>& ids) {
    for (ObjectId id : ids) RemoveRows(id);
    index_.Remove(ids);
  }
  void RemoveRows(ObjectId id) {
    for (auto [table, members] :
         {std::pair("domain_user", &model_.domainUsers), std::pair("group_member", &model_.groupMembers),
          std::pair("role_member", &model_.roleMembers)}) {
      database_.Execute(("DELETE FROM " + std::string(table) + " WHERE user=" + std::to_string(id)).c_str());
      for (auto& entry : *members) std::erase(entry.second, id);
    }
    database_.Prepare("DELETE FROM user WHERE id=?")->BindAll(id).Run();
    model_.users.erase(id);
  }
  void Join(const char* table, std::map<ObjectId, std::vector<ObjectId>>& members, ObjectId owner,
            ObjectId user) {
    auto insert = database_.Prepare("INSERT OR IGNORE INTO " + std::string(table) + " VALUES(?,?)");
    insert->BindAll(owner, user).Run();
    if (database_.Changes() > 0) members[owner].push_back(user);
  }

  /// That many different users, if there are so many.
  std::vector<ObjectId> AnyUsers(std::size_t count) {
    std::vector<ObjectId> all, some;
    for (const auto& user : model_.users) all.push_back(user.first);
    std::sample(all.begin(), all.end(), std::back_inserter(some), count, random_);
    return some;
  }

  ObjectId AnyUser() {
    auto at = model_.users.begin();
    std::advance(at, static_cast<std::ptrdiff_t>(random_() % model_.users.size()));
    return at->first;
  }

  void RandomChange() {
    auto kind = random_() % 8;
    if (kind < 3 || model_.users.empty()) {
      nextId_ += 1 + static_cast<ObjectId>(random_() % 3 == 0 ? random_() % 200 : 0);
      Add(RandomUser(nextId_));
    } else if (kind < 5) {
      Change(RandomUser(AnyUser()));
    } else if (kind == 5) {
      Remove(AnyUsers(random_() % 4 == 0 ? random_() % 40 : 1));
    } else if (kind == 6) {
      Join("domain_user", model_.domainUsers, 1 + static_cast<ObjectId>(random_() % 2), AnyUser());
    } else {
      Join("group_member", model_.groupMembers, 1 + static_cast<ObjectId>(random_() % 2), AnyUser());
      Join("role_member", model_.roleMembers, 1, AnyUser());
    }
  }

  Query RandomQuery() {
    constexpr Collection kCollections[] = {Collection::Users,
                                           Collection::Users,
                                           Collection::DomainUsers,
                                           Collection::GroupMembers,
                                           Collection::RoleMembers,
                                           Collection::UsersWithoutDomain,
                                           Collection::UsersWithoutGroup,
                                           Collection::UsersWithoutRole};
    Query query;
    query.collection = Pick(kCollections);
    query.scope = 1 + static_cast<ObjectId>(random_() % 2);
    query.order = Pick(kAllOrders);
    query.descending = random_() % 2 != 0;
    if (random_() % 3 != 0) query.filter = RandomText();
    return query;
  }

  /// Sorts them all, as their first uses do one by one.
  void BuildAllRules() {
    for (auto rules : kLanguageRules) index_.Build(rules, {});
  }

  void ExpectAgreement(UserIndex& index, const Query& query) {
    ExpectAgreement(index, query, LanguageRules::Neutral);
  }
  void ExpectAgreement(UserIndex& index, const Query& query, LanguageRules rules) {
    SCOPED_TRACE(testing::Message() << "rules " << int(rules) << " collection " << int(query.collection)
                                    << " scope " << query.scope << " order " << int(query.order)
                                    << " descending " << query.descending << " filter "
                                    << testing::PrintToString(query.filter));
    const auto rows = model_.Rows(query, rules);
    const auto count = std::ssize(rows);
    ASSERT_EQ(index.Count(query, rules), count);
    ASSERT_EQ(index.Page(query, 0, count + 1, rules), rows);
    const auto first = static_cast<std::int64_t>(random_() % static_cast<unsigned>(count + 2));
    const auto end = std::min<std::int64_t>(first + 7, count);
    const std::vector<ObjectId> page(rows.begin() + std::min(first, count),
                                     rows.begin() + std::max(std::min(first, count), end));
    EXPECT_EQ(index.Page(query, first, 7, rules), page);
    const auto prefix = RandomText();
    EXPECT_EQ(index.FindPrefix(query, prefix, first, rules), model_.FindPrefix(query, prefix, first, rules))
        << prefix;
    if (model_.users.empty()) return;
    const auto user = AnyUser();
    const auto at = std::find(rows.begin(), rows.end(), user);
    EXPECT_EQ(index.PositionOf(query, user, rules), at == rows.end() ? -1 : at - rows.begin());
    std::vector<ObjectId> asked = {0, ObjectId{1} << 40};
    std::vector<std::int64_t> places = {-1, -1};
    for (const auto& each : model_.users) {
      asked.push_back(each.first);
      const auto place = std::find(rows.begin(), rows.end(), each.first);
      places.push_back(place == rows.end() ? -1 : place - rows.begin());
    }
    EXPECT_EQ(index.PositionsOf(query, asked, rules), places);
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<sqlite::Database> connection_ = test::MakeEmptyTables(folder_ / "index.mdir");
  sqlite::Database& database_ = *connection_;
  UserIndex index_{database_, kSmallBlock};
  IndexModel model_;
  std::mt19937 random_{20240531};
  ObjectId nextId_ = 0;
};

class IndexModelTest : public IndexTest {
 protected:
  IndexModelTest() {
    database_.Execute(
        "INSERT INTO domain(id,version,name,name_key,description,style,disabled) "
        "VALUES(1,1,'d','d','',NULL,0),(2,1,'e','e','',NULL,0)");
    database_.Execute("INSERT INTO grp VALUES(1,1,1,0,0,1,0,'g','g',''),(2,1,2,0,0,1,0,'h','h','')");
    database_.Execute("INSERT OR IGNORE INTO role VALUES(1,1,'r','r',0,0)");
    model_.domainOfGroup = {{1, 1}, {2, 2}};
  }
};

TEST_F(IndexModelTest, AnswersAsAPlainSearchWouldByTheRulesOfEveryLanguage) {
  for (int round = 0; round < 600; ++round) {
    // From then on the changes keep one more.
    if (round % 40 == 0 && round / 40 < std::ssize(kLanguageRules)) {
      index_.Build(kLanguageRules[static_cast<std::size_t>(round / 40)], {});
    }
    const auto built = std::min<std::size_t>(static_cast<std::size_t>(round) / 40 + 1, kLanguageRules.size());
    auto anyRules = [&] { return kLanguageRules[random_() % built]; };
    {
      sqlite::Transaction transaction(database_);
      for (auto changes = 1 + random_() % 3; changes > 0; --changes) RandomChange();
      // Within the change, too.
      if (round % 10 == 0) ExpectAgreement(index_, RandomQuery(), anyRules());
      transaction.Commit();
    }
    for (int i = 0; i < 3; ++i) ExpectAgreement(index_, RandomQuery(), anyRules());
    if (round % 200 == 199) {
      EXPECT_EQ(index_.Check(), std::vector<std::string>());
    }
    if (HasFailure()) FAIL() << "round " << round;
  }
  // Down to the last user, so that all blocks go.
  sqlite::Transaction transaction(database_);
  while (!model_.users.empty()) Remove({AnyUser()});
  transaction.Commit();
  EXPECT_EQ(index_.Check(), std::vector<std::string>());
  ExpectAgreement(index_, {});
}

TEST_F(IndexTest, RemovesOneAndManyFromManyBlocks) {
  BuildAllRules();
  sqlite::Transaction transaction(database_);
  for (ObjectId id = 1; id <= 1500; ++id) Add(RandomUser(id));
  // One is searched for, many are sifted out of all blocks.
  for (const std::size_t count : {1u, 30u, 2u, 400u, 1u, 700u}) {
    Remove(AnyUsers(count));
    for (auto rules : {LanguageRules::Neutral, LanguageRules::Turkish}) ExpectAgreement(index_, {}, rules);
    ASSERT_EQ(index_.Check(), std::vector<std::string>());
  }
  const auto left = model_.users.size();
  index_.Remove(std::vector<ObjectId>{5000, 5001, 5002});
  EXPECT_EQ(index_.Count({}), static_cast<std::int64_t>(left)) << "nobody has these identifiers";
  Remove(AnyUsers(left));
  EXPECT_EQ(index_.Count({}), 0);
  EXPECT_EQ(index_.Check(), std::vector<std::string>());
  transaction.Commit();
}

TEST_F(IndexTest, RefusesToRemoveManyFromDamagedOrders) {
  sqlite::Transaction transaction(database_);
  for (ObjectId id = 1; id <= 40; ++id) Add(RandomUser(id));
  // In a block of the first order, somebody who is no user has taken a user's place.
  database_.Execute(
      "UPDATE user_sorting_block SET users=substr(users,5)||x'0f270000' "
      "WHERE id=(SELECT min(id) FROM user_sorting_block WHERE length(users)>4)");
  EXPECT_THROW(index_.Remove(AnyUsers(40)), Error);
}

TEST_F(IndexModelTest, ForgetsWhatWasRolledBackAndSeesOtherConnections) {
  sqlite::Database otherDatabase(folder_ / "index.mdir", SQLITE_OPEN_READWRITE);
  UserIndex other(otherDatabase, kSmallBlock);
  const Query plain, filtered{.filter = "a"},
      scoped{.collection = Collection::DomainUsers, .scope = 1, .filter = {}};
  for (int round = 0; round < 60; ++round) {
    {
      const auto before = model_;
      sqlite::Transaction transaction(database_);
      for (int i = 0; i < 8; ++i) RandomChange();
      for (const auto& query : {plain, filtered, scoped}) ExpectAgreement(index_, query);
      if (round % 2 == 0) {
        transaction.Commit();
      } else {
        model_ = before;
      }
    }
    for (auto* index : {&index_, &other}) {
      for (const auto& query : {plain, filtered, scoped}) ExpectAgreement(*index, query);
    }
    ASSERT_FALSE(HasFailure()) << "round " << round;
  }
}

TEST_F(IndexTest, BuildsTheSameAnewAsStepByStep) {
  {
    sqlite::Transaction transaction(database_);
    for (ObjectId id = 1; id < 1200; id += 1 + static_cast<ObjectId>(random_() % 4)) Add(RandomUser(id));
    transaction.Commit();
  }
  EXPECT_EQ(index_.Check(), std::vector<std::string>());
  database_.Execute(
      "UPDATE user_folded SET texts=x'00' WHERE chunk=1; DELETE FROM user_sorting_block WHERE id=3");
  EXPECT_THROW(index_.Count({.filter = "a"}), Error);
  EXPECT_THROW(index_.Page({}, 0, 10000), Error);
  {
    sqlite::Transaction transaction(database_);
    index_.Rebuild();
    transaction.Commit();
  }
  EXPECT_EQ(index_.Check(), std::vector<std::string>());
  for (int i = 0; i < 30; ++i) {
    ExpectAgreement(index_, {.order = Pick(kAllOrders), .descending = i % 2 != 0, .filter = RandomText()});
  }
}

TEST_F(IndexTest, CheckNamesEveryDifference) {
  struct Damage {
    const char* sql;
    const char* fault;
  };
  const Damage damages[] = {
      {"UPDATE user SET full_name='other' WHERE id=7", "search texts in block 0 differ"},
      {"DELETE FROM user_folded WHERE chunk=1", "search texts in block 1 differ"},
      {"INSERT INTO user_folded VALUES(900,x'')", "3 blocks instead of 2"},
      {"DELETE FROM user WHERE id=7", "by description is wrong"},
      {"UPDATE user_sorting_block SET users=zeroblob(length(users)) WHERE id=0", "by name is wrong"},
      {"UPDATE user_sorting_block SET users=x'' WHERE id=0", "by name cannot be read"},
      {"DELETE FROM user_sorting WHERE id=1", "by full name is wrong: it holds 0 of 300"},
      {"INSERT INTO user_sorting_block VALUES(999999,x'')", "not listed"},
      {"DELETE FROM user_sorting WHERE id=4*256+2", "by description (Turkish) is wrong: it holds 0 of 300"},
      {"UPDATE user_folded SET texts=x'' WHERE chunk=4294967296",
       "The Turkish search texts in block 0 differ"},
      {"DELETE FROM user_rules WHERE id=4", "The Turkish search texts have 2 blocks instead of 0"},
  };
  BuildAllRules();
  sqlite::Transaction transaction(database_);
  for (ObjectId id = 1; id <= 300; ++id) Add(RandomUser(id));
  for (const auto& [sql, fault] : damages) {
    database_.Execute("SAVEPOINT before_damage");
    database_.Execute(sql);
    const auto faults = testing::PrintToString(index_.Check());
    EXPECT_NE(faults.find(fault), std::string::npos) << sql << ": " << faults;
    database_.Execute("ROLLBACK TO before_damage");
  }
  EXPECT_EQ(index_.Check(), std::vector<std::string>());
}

TEST_F(IndexTest, RefusesWhatItCannotHold) {
  sqlite::Transaction transaction(database_);
  for (ObjectId id : {ObjectId{0}, ObjectId{-1}, ObjectId{1} << 32}) {
    EXPECT_THROW(index_.Insert(id, {"a", "b", "c"}), Error) << id;
    EXPECT_EQ(index_.PositionOf({}, id), -1) << id;
  }
  EXPECT_THROW(index_.Count({.collection = Collection::Roles, .filter = {}}), Error);
  EXPECT_TRUE(index_.Page({}, 5, 10).empty());
  EXPECT_TRUE(index_.Page({}, -5, -10).empty());
  Add(RandomUser(1));
  EXPECT_EQ(index_.Page({}, INT64_MIN, INT64_MAX), std::vector<ObjectId>{1});
  EXPECT_TRUE(index_.Page({}, INT64_MAX, INT64_MAX).empty());
}

}  // namespace
}  // namespace mindloft
