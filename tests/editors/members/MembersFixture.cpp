#include "tests/editors/members/MembersFixture.h"

#include <wx/listctrl.h>

#include <algorithm>

#include "backend/directory/SqliteDirectory.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

const std::vector<std::string> MembersFixture::kNames = {
    "anna", "back\\slash;1", "\"quoted\" & 'more'", "\u0639\u0645\u0631", "smile \U0001F600", "Zo\u00eb"};

void MembersFixture::SetUp() {
  PrivateServices::SetUp();
  SqliteDirectory::Create(file_, {"admin", kPassword});
  SetApplication(std::make_unique<Corvane::Application>(Corvane::EmbeddedDirectoryProvider(file_)));
  GetConnection()->SetConnectMode(1);
  LogIn("admin");
  const auto domain = Server().KDomains()->Add();
  domain->SetName("Alpha");
  domain->Update();
  domainId_ = domain->Id();
  std::string ids;
  for (const auto& name : kNames) {
    const auto user = Server().Users()->Add();
    user->SetName(name);
    user->SetFullName("Full " + name);
    user->Update();
    ids += user->Id() + ";";
  }
  domain->ChangeUsers(ids, "");
  const auto plain = Server().Users()->Add();
  plain->SetName("plain");
  plain->SetPassword(kPassword);
  plain->Update();
  const auto group = domain->DGroups()->Add();
  group->SetName("Readers");
  group->SetDescription("first\r\nsecond");
  group->Update();
  group->ChangeMembers(ToUtf8(IdOf(kNames[0]) + ";" + IdOf(kNames[1])), "");
}

void MembersFixture::TearDown() {
  SetApplication(nullptr);
  PrivateServices::TearDown();
}

void MembersFixture::LogIn(const std::string& name) {
  ASSERT_TRUE(GetConnection()->Login(name, kPassword));
}

std::shared_ptr<Corvane::DGroup> MembersFixture::Group(const std::string& name) {
  const auto groups = Server().KDomains()->Item(domainId_)->KDomain()->DGroups();
  for (const auto& record : groups->View().Page(0, 10))
    if (record.name == name) return groups->Item(Corvane::IdText(record.id));
  return nullptr;
}

std::shared_ptr<Corvane::Role> MembersFixture::Role(const std::string& name) {
  for (const auto& record : Server().Roles()->View().Page(0, 20))
    if (record.name == name) return Server().Roles()->Item(Corvane::IdText(record.id));
  return nullptr;
}

wxString MembersFixture::IdOf(const std::string& userName) {
  for (const auto& record : Server().Users()->View().Page(0, 100))
    if (record.name == userName) return ToWx(Corvane::IdText(record.id));
  return {};
}

std::vector<std::string> MembersFixture::Names(const std::shared_ptr<Corvane::Users>& users) {
  std::vector<std::string> names;
  for (const auto& record : users->View().Page(0, 100)) names.push_back(record.name);
  return names;
}

std::vector<std::string> MembersFixture::Listed(const User& user, const char* explorer) {
  std::vector<std::string> names;
  const auto& list = Explorer(user, explorer);
  for (std::int64_t row = 0; row < list.ListCount(); ++row)
    names.push_back(ToUtf8(list.ListRow(row).fields.BeforeFirst(wxUniChar(1))));
  return names;
}

void MembersFixture::Select(const User& user, const std::vector<std::string>& names, const char* explorer) {
  auto& list = user.Find<wxListCtrl>("list");
  const auto listed = Listed(user, explorer);
  User(user).SelectRow("list", std::find(listed.begin(), listed.end(), names.at(0)) - listed.begin());
  for (const auto& name : names) {
    const auto row = std::find(listed.begin(), listed.end(), name) - listed.begin();
    ASSERT_LT(row, static_cast<std::ptrdiff_t>(listed.size())) << name;
    list.SetItemState(row, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
  }
  Settle();
  ASSERT_EQ(Explorer(user, explorer).SelectedListCount(), static_cast<std::int64_t>(names.size()));
}

std::int64_t MembersFixture::Changes() {
  std::int64_t changes = 0;
  for (const auto& entry : Server().Log()->View().Page(0, 1000)) changes += entry.action != "login";
  return changes;
}

}  // namespace mindloft::test
