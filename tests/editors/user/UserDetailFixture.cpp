#include "tests/editors/user/UserDetailFixture.h"

#include "backend/directory/SqliteDirectory.h"
#include "backend/tessaline/Text.h"
#include "editors/user/frmUserDetail.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

void UserDetailFixture::SetUp() {
  PrivateServices::SetUp();
  SqliteDirectory::Create(file_, {"admin", kPassword});
  SetApplication(std::make_unique<Corvane::Application>(Corvane::EmbeddedDirectoryProvider(file_)));
  GetConnection()->SetConnectMode(1);
  LogIn("admin");
  for (const char* name : {"anna", "bob"}) {
    const auto user = Server().Users()->Add();
    user->SetName(name);
    user->SetFullName(std::string("Full ") + name);
    user->SetDescription("first line\nsecond line");
    user->SetPassword(kPassword);
    user->Update();
  }
  const auto add = [this](const char* name, std::initializer_list<const char*> groups) {
    const auto domain = Server().KDomains()->Add();
    domain->SetName(name);
    domain->Update();
    for (const char* each : groups) {
      const auto group = domain->DGroups()->Add();
      group->SetName(each);
      group->Update();
    }
  };
  add("Alpha", {"Readers", "Writers"});
  add("Beta", {"Authors"});
  const auto anna = Named("anna");
  anna->ChangeDomains(Domain("Alpha")->Id(), "");
  anna->ChangeGroups(Group("Alpha", "Readers")->Id(), "");
}

void UserDetailFixture::TearDown() {
  SetApplication(nullptr);
  PrivateServices::TearDown();
}

void UserDetailFixture::LogIn(const std::string& name, const std::string& password) {
  ASSERT_TRUE(GetConnection()->Login(name, password)) << name;
}

std::shared_ptr<Corvane::User> UserDetailFixture::Named(const std::string& name) {
  for (const auto& record : Server().Users()->View().Page(0, 100))
    if (record.name == name) return Server().Users()->Item(Corvane::IdText(record.id));
  return nullptr;
}

std::shared_ptr<Corvane::KDomain> UserDetailFixture::Domain(const std::string& name) {
  for (const auto& record : Server().KDomains()->View().Page(0, 100))
    if (record.name == name) return Server().KDomains()->Context(record)->KDomain();
  return nullptr;
}

std::shared_ptr<Corvane::DGroup> UserDetailFixture::Group(const std::string& domain,
                                                          const std::string& name) {
  const auto groups = Domain(domain)->DGroups();
  for (const auto& record : groups->View().Page(0, 100))
    if (record.name == name) return groups->Item(Corvane::IdText(record.id));
  return nullptr;
}

int UserDetailFixture::Edit(const std::shared_ptr<Corvane::User>& user, const ModalDriver::Script& script) {
  modal_.ExpectForm("frmUserDetail", script);
  frmUserDetail form;
  const int result = form.OpenWindow(user);
  modal_.Verify();
  return result;
}

std::set<std::string> UserDetailFixture::GroupsOf(const std::string& user) {
  std::set<std::string> names;
  for (const auto& record : Named(user)->Groups().Page(0, 100)) names.insert(record.name);
  return names;
}

std::set<std::string> UserDetailFixture::DomainsOf(const std::string& user) {
  std::set<std::string> names;
  for (const auto& record : Named(user)->Domains().Page(0, 100)) names.insert(record.name);
  return names;
}

std::vector<wxString> UserDetailFixture::Names(const User& user, const char* list) {
  auto& explorer = user.Find<ctExplorer>(list);
  std::vector<wxString> names;
  for (std::int64_t row = 0; row < explorer.ListCount(); ++row)
    names.push_back(explorer.ListRow(row).fields.BeforeFirst(explorer.BreakCharacter()));
  return names;
}

std::int64_t UserDetailFixture::RowOf(const User& user, const char* list, const wxString& name) {
  const auto names = Names(user, list);
  const auto found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? -1 : found - names.begin();
}

void UserDetailFixture::ClickCheck(const User& user, const char* list, const wxString& name) {
  ASSERT_TRUE(user.IsShown(list) && user.IsEnabled(list)) << list;
  const std::int64_t row = RowOf(user, list, name);
  ASSERT_GE(row, 0) << list << ' ' << name;
  user.Find<ctExplorer>(list).ClickCheck(row);
}

}  // namespace mindloft::test
