#include "tests/directory/DirectoryFixture.h"

namespace mindloft::test {
namespace {

class OrderTest : public DirectoryFixture {
 protected:
  std::string Domains(Order order, bool descending = false) {
    std::string names;
    const Query query{
        .collection = Collection::Domains, .order = order, .descending = descending, .filter = {}};
    for (const auto& record : directory_->DomainPage(admin_, query, 0, 99)) names += record.name + " ";
    return names;
  }
};

TEST_F(OrderTest, DomainsByEveryField) {
  for (const char* name : {"delta", "Alpha", "charlie", "Bravo"}) AddDomain(name);
  Sql("UPDATE domain SET disabled = 1 WHERE name IN ('Alpha', 'delta')");
  Sql("UPDATE domain SET description = substr(name, 2)");
  EXPECT_EQ(Domains(Order::Name), "Alpha Bravo charlie delta ");
  EXPECT_EQ(Domains(Order::Description), "delta charlie Alpha Bravo ");
  EXPECT_EQ(Domains(Order::State), "Bravo charlie Alpha delta ");
  EXPECT_EQ(Domains(Order::State, true), "delta Alpha charlie Bravo ");
  EXPECT_EQ(Domains(Order::Privileges), Domains(Order::Name));
  const Query byState{.collection = Collection::Domains, .order = Order::State, .filter = {}};
  EXPECT_EQ(directory_->FindPrefix(admin_, byState, "D", 0), 3);
}

TEST_F(OrderTest, RolesByTheirPrivilegesInWords) {
  Sql("DELETE FROM role_member");
  Sql("DELETE FROM role");
  Sql("INSERT INTO role VALUES (1, 1, 'a', 'a', 0, 128), (2, 1, 'b', 'b', 0, 32), (3, 1, 'c', 'c', 0, 0), "
      "(4, 1, 'd', 'd', 0, 16)");
  std::string names;
  const Query query{.collection = Collection::Roles, .order = Order::Privileges, .filter = {}};
  for (const auto& record : directory_->RolePage(admin_, query, 0, 99)) names += record.name;
  EXPECT_EQ(names, "cdba");
}

TEST_F(OrderTest, UsersLackTheOtherFields) {
  for (const char* name : {"zoe", "Bert"}) AddUser(name);
  for (const Order order : {Order::State, Order::Privileges}) {
    const Query query{.order = order, .filter = {}};
    const auto page = directory_->UserPage(admin_, query, 0, 9);
    ASSERT_EQ(page.size(), 3u);
    EXPECT_EQ(page[0].name + page[1].name + page[2].name, "adminBertzoe");
    EXPECT_EQ(directory_->PositionOf(admin_, query, page[2].id), 2);
    EXPECT_EQ(directory_->FindPrefix(admin_, query, "be", 0), 1);
  }
}

}  // namespace
}  // namespace mindloft::test
