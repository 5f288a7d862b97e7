#include "backend/corvane/document/DocumentText.h"
#include "backend/directory/TextLengths.h"
#include "tests/corvane/CorvaneFixture.h"

namespace mindloft::test {
namespace {

using CollectionTest = CorvaneFixture;

TEST_F(CollectionTest, AnUnknownKeyIsNothing) {
  const auto domain = AddDomain("Domain");
  const auto other = AddDomain("Other");
  for (const char* key : {"", "0", "-1", "abc", "1x", " 1", "99999", "99999999999999999999"}) {
    EXPECT_FALSE(server_->Users()->Item(key)) << key;
    EXPECT_FALSE(server_->Roles()->Item(key)) << key;
    EXPECT_FALSE(server_->KDomains()->Item(key)) << key;
    EXPECT_FALSE(server_->Styles()->Item(key)) << key;
    EXPECT_FALSE(domain->DGroups()->Item(key)) << key;
    EXPECT_FALSE(domain->DUsers()->Item(key)) << key;
  }
  // Known, but of another collection.
  EXPECT_FALSE(domain->DGroups()->Item(other->DGroups()->OfKind(AdministratorsGroup)->Id()));
  EXPECT_FALSE(domain->DUsers()->Item(console_->Connection()->CurrentUser()->Id()));
  EXPECT_FALSE(domain->DGroups()->OfKind(77));
}

TEST_F(CollectionTest, ADomainsFormattedDescriptionAndItsPlainBeginning) {
  const auto domain = AddDomain("Domain");
  domain->SetDescription("first\nsecond");
  domain->Update();
  // An older, plain description is taken over line by line.
  const auto document = domain->Document();
  EXPECT_EQ(document.state, Corvane::DocumentState::Whole);
  EXPECT_EQ(Corvane::PlainTextOf(document.xml), "first\nsecond");

  const std::string letters(kTextLength - 1, 'x');
  const auto formatted = Corvane::DocumentOfPlainText(letters + "e\u0301 and more");
  domain->SetDocument(formatted);
  domain->Update();
  const auto stored = server_->KDomains()->Item(domain->Id())->KDomain();
  EXPECT_EQ(stored->Description(), letters);
  EXPECT_EQ(stored->Document().xml, formatted);
  stored->SetDescription("plain again");
  stored->Update();
  EXPECT_EQ(Corvane::PlainTextOf(server_->KDomains()->Item(domain->Id())->KDomain()->Document().xml),
            "plain again");
}

TEST_F(CollectionTest, GroupsOfADomain) {
  const auto domain = AddDomain("Domain");
  const auto user = AddUser("anna");
  domain->ChangeUsers(user->Id(), "");
  domain->SetDescription("after the members");
  domain->Update();

  auto group = domain->DGroups()->Add();
  EXPECT_EQ(group->DomainId(), domain->Id());
  group->SetName("Editors");
  group->SetDomainPrivileges(ReadDocuments | WriteDocuments);
  group->Update();
  EXPECT_EQ(domain->DGroups()->Count(), 2);
  EXPECT_EQ(group->GetUsersNotAccessible()->Count(), 1);
  group->ChangeMembers(user->Id(), "");
  EXPECT_EQ(group->GetUsersNotAccessible()->Count(), 0);
  ASSERT_TRUE(group->Members()->Item(user->Id()));
  group->SetDescription("text");
  group->Update();
  EXPECT_EQ(domain->DGroups()->Item(group->Id())->Description(), "text");

  // Taking a member out of a collection leaves the user in the directory.
  group->Members()->Delete({{user->Stored().id, user->Stored().version}});
  EXPECT_EQ(group->Members()->Count(), 0);
  EXPECT_TRUE(domain->DUsers()->Item(user->Id()));
  domain->DUsers()->Delete({{user->Stored().id, 0}});
  EXPECT_EQ(domain->GetUsersNotAccessible()->Count(), server_->Users()->Count());
  EXPECT_EQ(NumberOf([&] {
              domain->GetUsersNotAccessible()->Delete({{user->Stored().id, 0}});
            }),
            ErrorNumber::TypeMismatch);

  const auto stored = domain->DGroups()->Item(group->Id())->Stored();
  domain->DGroups()->Delete({{stored.id, stored.version}}, {});
  EXPECT_FALSE(domain->DGroups()->Item(group->Id()));
  server_->Users()->Delete({{user->Stored().id, server_->Users()->Item(user->Id())->Stored().version}});
  EXPECT_FALSE(server_->Users()->Item(user->Id()));
}

TEST_F(CollectionTest, DomainsAndTheirStyles) {
  auto style = server_->Styles()->Add();
  style->SetName("Night");
  style->SetDefinition("<style/>");
  style->Update();
  const auto domain = AddDomain("Domain");
  domain->SetStyleId(style->Id());
  domain->SetDisabled(true);
  domain->Update();
  EXPECT_EQ(NumberOf([&] { domain->SetStyleId("none"); }), ErrorNumber::TypeMismatch);
  EXPECT_EQ(domain->StyleId(), style->Id());

  const auto context = server_->KDomains()->Item(domain->Id());
  ASSERT_TRUE(context);
  EXPECT_TRUE(context->KDomain()->Disabled());
  EXPECT_EQ(context->KDomain()->StyleId(), style->Id());
  context->KDomain()->SetStyleId("");
  context->KDomain()->Update();
  EXPECT_EQ(server_->KDomains()->Item(domain->Id())->KDomain()->StyleId(), "");

  auto copy = server_->KDomains()->Add();
  copy->SetName("Copy");
  copy->CopyFrom({domain->Stored().id, true, true, true});
  copy->Update();
  EXPECT_EQ(copy->DGroups()->Count(), domain->DGroups()->Count());
  server_->KDomains()->Delete({copy->Stored().id, copy->Stored().version});
  EXPECT_EQ(server_->KDomains()->Count(), 1);
  EXPECT_GT(server_->Log()->View().Count(), 4);
}

TEST_F(CollectionTest, DomainPrivilegesAreThoseOfTheLoggedInUser) {
  const auto domain = AddDomain("Domain");
  const auto user = AddUser("gina", "long password");
  domain->ChangeUsers(user->Id(), "");
  auto group = domain->DGroups()->Add();
  group->SetName("Writers");
  group->SetDomainPrivileges(ReadDocuments | WriteDocuments);
  group->Update();
  group->ChangeMembers(user->Id(), "");

  auto other = NewConsole();
  ASSERT_TRUE(LogIn(*other, "gina", "long password"));
  const auto context = other->Server()->KDomains()->Item(domain->Id());
  ASSERT_TRUE(context);
  EXPECT_TRUE(context->HasPrivilege(ReadDocuments | WriteDocuments));
  EXPECT_FALSE(context->HasPrivilege(WriteDocuments | ManageDomainGroups));
  context->KDomain()->SetName("Renamed");
  EXPECT_EQ(NumberOf([&] { context->KDomain()->Update(); }), ErrorNumber::AccessDenied);
}

TEST_F(CollectionTest, ViewsShowWindows) {
  for (const char* name : {"bert", "anna", "carl"}) AddUser(name);
  auto view = server_->Users()->View();
  view.SetOptions({Order::Name, true, "A"});
  EXPECT_EQ(view.Count(), 2);
  EXPECT_EQ(view.TotalCount(), 4);
  const auto page = view.Page(0, 10);
  ASSERT_EQ(page.size(), 2u);
  EXPECT_EQ(page[0].name + page[1].name, "carlanna");
  EXPECT_EQ(view.PositionOf(page[1].id), 1);
  EXPECT_EQ(view.FindPrefix("AN", 0), 1);
}

}  // namespace
}  // namespace mindloft::test
