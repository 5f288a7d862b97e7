#include <gmock/gmock.h>
#include <wx/frame.h>

#include "backend/corvane/LocalDirectory.h"
#include "backend/directory/Privileges.h"
#include "core/ErrorHandling.h"
#include "core/IdSource.h"
#include "core/Refresh.h"
#include "core/modShare.h"
#include "platform/SystemGuid.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using ModShareTest = PrivateServices;

TEST_F(ModShareTest, SetURLReplacesThePrefixInAnyCase) {
  struct Case {
    const char* url;
    const char* expected;
  };
  for (auto [url, expected] :
       {Case{"http://a/B", "HTTPS://a/B"}, Case{"HTTP://a", "HTTPS://a"}, Case{" \tHttP:x ", "HTTPS:x"},
        Case{"https://a", "https://a"}, Case{" ftp://a ", "ftp://a"}, Case{"", ""}, Case{"   ", ""},
        Case{"http", "http"}, Case{"a http:b", "a http:b"}}) {
    EXPECT_EQ(SetURL(url, "HTTP:", "HTTPS:"), expected) << url;
  }
  EXPECT_EQ(SetURL("http://a", "http:", "x"), "http://a") << "the prefix is compared with upper case";
}

TEST_F(ModShareTest, IdentifiersAreConsecutiveAndGuidsAre32Digits) {
  auto first = CreateId();
  EXPECT_EQ(CreateId(), first + 1);
  std::set<std::string> seen;
  for (int count = 0; count < 200; ++count) {
    auto guid = CreateGUID().utf8_string();
    EXPECT_EQ(guid.size(), 32u);
    EXPECT_EQ(guid.find_first_not_of("0123456789ABCDEF"), std::string::npos) << guid;
    EXPECT_TRUE(seen.insert(guid).second);
  }
}

TEST_F(ModShareTest, NoIdentifierIsGivenTwice) {
  constexpr auto largest = std::numeric_limits<std::int32_t>::max();
  IdSource source(largest - 1);
  EXPECT_EQ(source.Next(), largest);
  for (int attempt = 0; attempt < 2; ++attempt) {
    try {
      ADD_FAILURE() << source.Next();
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), ErrorNumber::Overflow);
    }
  }
}

TEST_F(ModShareTest, AGuidIsItsFourWordsFromTheLastAndIsMissedWithAMessage) {
  std::string bytes = "\x01\x23\x45\x67\x89\xAB\xCD\xEF\xFE\xDC\xBA\x98\x76\x54\x32\x10";
  platform::FakeGuidSource source([&] { return bytes; });
  EXPECT_EQ(CreateGUID(), "1032547698BADCFEEFCDAB8967452301");
  bytes.clear();
  ModalDriver modal;
  modal.ExpectMessage(25005, wxID_OK);
  EXPECT_EQ(CreateGUID(), wxString('0', 32));
}

class LoggedInTest : public PrivateServices {
 protected:
  static constexpr const char* password = "correct horse battery";

  void SetUp() override {
    PrivateServices::SetUp();
    auto file = folder_ / "test.directory";
    Corvane::CreateLocalDirectory(file, "root", password);
    SetApplication(std::make_unique<Corvane::Application>(Corvane::EmbeddedDirectoryProvider(file)));
    GetConnection()->SetConnectMode(1);
    LogIn("root");
  }
  void TearDown() override {
    SetApplication(nullptr);
    PrivateServices::TearDown();
  }
  static void LogIn(const char* name) { ASSERT_TRUE(GetConnection()->Login(name, password)); }
  static std::shared_ptr<Corvane::Server> Server() { return GetApplication()->Server(); }
};

TEST_F(LoggedInTest, PrivilegesAreTheLoggedInUsersOwn) {
  auto domain = Server()->KDomains()->Add();
  domain->SetName("Domain");
  domain->Update();
  auto group = domain->DGroups()->Add();
  group->SetName("Writers");
  group->SetDomainPrivileges(ReadDocuments | WriteDocuments);
  group->Update();
  struct User {
    const char* name;
    std::string group;
  };
  for (const auto& [name, groupId] :
       {User{"writer", group->Id()}, User{"chief", domain->DGroups()->OfKind(5)->Id()}, User{"guest", ""}}) {
    auto user = Server()->Users()->Add();
    user->SetName(name);
    user->SetPassword(password);
    user->Update();
    user->ChangeDomains(domain->Id(), "");
    if (!groupId.empty()) user->ChangeGroups(groupId, "");
  }
  auto id = domain->Id();

  struct Case {
    const char* name;
    bool system, write, manage, administrator;
  };
  for (auto [name, system, write, manage, administrator] :
       {Case{"root", true, false, false, false}, Case{"writer", false, true, false, false},
        Case{"chief", false, true, true, true}, Case{"guest", false, false, false, false}}) {
    SCOPED_TRACE(name);
    LogIn(name);
    auto context = Server()->KDomains()->Item(id);
    EXPECT_EQ(CheckSysPrivilege(ManageUsers), system);
    EXPECT_EQ(CheckSysPrivilege(AllSysPrivileges), system);
    EXPECT_EQ(CheckDomainPrivilege(context, WriteDocuments), write);
    EXPECT_EQ(CheckDomainPrivilege(context, WriteDocuments | ManageDomainGroups), manage);
    EXPECT_EQ(GetCurrUserIsCurrDomainAdminstratorUser(context), administrator);
    EXPECT_FALSE(CheckDomainPrivilege(nullptr, ReadDocuments));
    EXPECT_FALSE(GetCurrUserIsCurrDomainAdminstratorUser(nullptr));
  }
  auto context = Server()->KDomains()->Item(id);
  GetConnection()->Logout();
  EXPECT_FALSE(CheckSysPrivilege(ManageUsers));
  EXPECT_FALSE(GetCurrUserIsCurrDomainAdminstratorUser(context));
}

TEST_F(ModShareTest, ShutdownUnloadsTheLastFormFirstAndStopsAtARefusal) {
  std::vector<int> unloaded;
  bool refuses = true;
  std::vector<wxFrame*> forms;
  for (int number = 0; number < 3; ++number) {
    auto* form = new wxFrame(nullptr, wxID_ANY, "form");
    form->Bind(wxEVT_CLOSE_WINDOW, [&, form, number](wxCloseEvent& event) {
      if (number == 1 && refuses) {
        event.Veto();
        return;
      }
      unloaded.push_back(number);
      form->Destroy();
    });
    forms.push_back(form);
  }
  EXPECT_FALSE(Shutdown());
  EXPECT_EQ(unloaded, std::vector{2});
  Settle();
  refuses = false;
  EXPECT_TRUE(Shutdown(forms[0])) << "a form that is being unloaded is left out";
  EXPECT_EQ(unloaded, (std::vector{2, 1}));
  Settle();
  EXPECT_TRUE(Shutdown());
  EXPECT_EQ(unloaded, (std::vector{2, 1, 0}));
  Settle();
}

class RefreshTest : public PrivateServices {
 protected:
  Refresh refresh_;
  std::vector<std::string> heard_;
  Refresh::Subscription Listen(const std::string& name, std::function<void()> then = {}) {
    return refresh_.OnNotify([this, name, then](std::int32_t& kind, std::int32_t& action, std::any& object) {
      heard_.push_back(name + std::to_string(kind) + std::to_string(action) +
                       std::any_cast<const char*>(object));
      if (then) then();
    });
  }
};

TEST_F(RefreshTest, TheSharedNotifierIsOneAndRaisesOnlyWhileEnabled) {
  EXPECT_EQ(GetRefresh(), GetRefresh());
  auto listener = Listen("a");
  int languages = 0;
  auto language = refresh_.OnNotifyLanguage([&] { ++languages; });
  refresh_.SetEnabled(false);
  refresh_.Notify(1, 1, "x");
  refresh_.NotifyLanguage();
  refresh_.SetEnabled(true);
  refresh_.Notify(ObjectKind::DomainUser, ObjectAction::Changed, "y");
  refresh_.Notify(77, -1, "z");
  refresh_.NotifyLanguage();
  EXPECT_EQ(heard_, (std::vector<std::string>{"a43y", "a77-1z"}));
  EXPECT_EQ(languages, 1);
}

TEST_F(RefreshTest, ListenersComeAndGoWhileAnEventIsRaised) {
  Refresh::Subscription first, second, third, late;
  first = Listen("a", [&] {
    second.reset();
    first.reset();
    late = Listen("d");
  });
  second = Listen("b");
  third = Listen("c", [&] {
    if (heard_.size() < 5) refresh_.Notify(2, 2, "n");
  });
  refresh_.Notify(1, 1, "x");
  EXPECT_EQ(heard_,
            (std::vector<std::string>{"a11x", "c11x", "c22n", "c22n", "c22n", "d22n", "d22n", "d22n"}));
}

TEST_F(RefreshTest, AFailingListenerStopsNobodyAndTheSenderLearnsOfIt) {
  auto failing = Listen("a", [] { throw Error(ErrorNumber::Storage, "listener"); });
  auto other = Listen("b");
  try {
    refresh_.Notify(1, 1, "x");
    ADD_FAILURE() << "the failure was lost";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::Storage);
    EXPECT_EQ(error.Source(), "Notify of Refresh");
  }
  EXPECT_EQ(heard_, (std::vector<std::string>{"a11x", "b11x"}));
}

}  // namespace
}  // namespace mindloft::test
