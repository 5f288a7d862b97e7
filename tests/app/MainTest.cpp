#include <wx/frame.h>

#include "app/frmHidden.h"
#include "app/modPublic.h"
#include "mainwindow/CommandLineState.h"
#include "tests/app/StartFixture.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using MainTest = StartFixture;

TEST_F(MainTest, TheKeyTheSwitchAndTheRegistryDecideHowTheLoginGoes) {
  MakeDirectory();
  struct Case {
    std::vector<bool> shift;  // at the first and the second look
    const char* enabled;
    platform::RegistryValue isLogin;
    bool passwordFits;
    const char* trace;
  };
  const platform::RegistryValue off = 0u, on = 1u;
  const Case cases[] = {
      {{}, "1", off, true, "shift IsLogin shift open window"},
      {{}, "1", off, false, "shift IsLogin shift open dialog window"},
      {{}, "0", off, true, "shift IsLogin shift dialog window"},
      {{}, "", off, true, "shift IsLogin shift dialog window"},
      {{}, "2", off, true, "shift IsLogin shift dialog window"},
      {{}, "0", on, true, "shift IsLogin shift open window"},
      {{}, "0", on, false, "shift IsLogin shift open dialog window"},
      {{}, "0", std::string("-1"), true, "shift IsLogin shift open window"},
      {{}, "0", std::string("yes"), true, "shift IsLogin shift dialog window"},
      {{}, "0", platform::OtherRegistryType{}, true, "shift IsLogin shift dialog window"},
      {{false, true}, "1", off, true, "shift IsLogin shift dialog window"},
      {{false, true}, "1", on, true, "shift IsLogin shift open window"},
      {{false, true}, "0", on, true, "shift IsLogin shift open window"},
      {{true, true}, "1", on, true, "shift dialog window"},
      {{true, false}, "1", on, true, "shift dialog window"},
      {{true, false}, "0", off, true, "shift dialog window"},
  };
  for (const auto& one : cases) {
    SetAutoLogin(one.enabled, one.passwordFits ? kPassword : "wrong password");
    SetIsLogin(one.isLogin);
    shift_ = one.shift;
    trace_.clear();
    Main("node", TracingServices());
    EXPECT_EQ(Trace(), one.trace) << &one - cases;
    EXPECT_EQ(SavedCommandLine(), "node");
  }
  EXPECT_EQ(loginTitle_, GetResource().GetString(61200));
}

TEST_F(MainTest, NamesAreInTheOrderOfTheLanguageBeforeTheWindowOpens) {
  MakeDirectory();
  for (const int code : {2052, 1033}) {
    ASSERT_TRUE(GetResource().SwitchLanguage(code));
    for (const char* enabled : {"1", "0"}) {
      SetAutoLogin(enabled);
      auto services = TracingServices();
      int language = 0;
      services.login = [](const wxString&) {
        GetConnection()->SetConnectMode(1);
        return GetConnection()->Login(kUser, kPassword);
      };
      services.showMainWindow = [&] { language = GetConnection()->Language(); };
      Main({}, services);
      EXPECT_EQ(language, code) << enabled;
    }
  }
}

TEST_F(MainTest, ADamagedSwitchIsReportedAndLeadsToTheDialog) {
  SetAutoLogin("99999999");
  Main({}, TracingServices());
  EXPECT_EQ(Trace(), "shift IsLogin shift dialog window");
  EXPECT_NE(LoggedText().find("modPublic"), std::string::npos);
}

TEST_F(MainTest, ARefusedLoginLeavesNoWindow) {
  auto* frame = new wxFrame(nullptr, wxID_ANY, "open");
  bool gone = false;
  frame->Bind(wxEVT_DESTROY, [&](wxWindowDestroyEvent& event) {
    gone = gone || event.GetEventObject() == frame;
    event.Skip();
  });
  loginResult_ = false;
  Main({}, TracingServices());
  EXPECT_EQ(Trace(), "shift IsLogin shift dialog");
  WaitFor([&] { return gone; }, "the end of the open form");
}

TEST_F(MainTest, WhatASecondInstanceSendsDuringTheLoginWaitsForTheWindow) {
  auto services = TracingServices();
  frmHidden* hidden = nullptr;
  bool cancel = true;
  services.login = [&](const wxString&) {
    hidden->Form_LinkExecute("first", cancel);
    hidden->Form_LinkExecute("second", cancel);
    return true;
  };
  frmHidden form(services);
  hidden = &form;
  form.Form_Load("mine");
  EXPECT_EQ(Trace(), "shift IsLogin shift raise raise window handOver");
  EXPECT_EQ(SavedCommandLine(), "second");
  EXPECT_FALSE(cancel);
  form.Form_LinkExecute("", cancel);
  EXPECT_EQ(trace_.back(), "handOver");
  EXPECT_EQ(SavedCommandLine(), "");
}

TEST_F(MainTest, ASecondInstanceOnlyHandsOver) {
  std::vector<bool> cancelled;
  frmHidden first(TracingServices());
  first.Form_Load("mine");
  trace_.clear();
  frmHidden second(TracingServices());
  // A real second process answers while its sender waits; here both are one thread.
  second.Form_Load("other");
  EXPECT_EQ(Trace(), "");
}

TEST_F(MainTest, ADamagedLanguageIsToldOnceAtTheStart) {
  const auto languages = folder_ / "languages";
  std::filesystem::copy(LanguageFolder(), languages);
  std::filesystem::resize_file(languages / "2052.xml", 1000);
  GetResource().SetSetting(Tessaline::Setting::CurrentLanguage, "2052");
  ResetServices({registry_, folder_ / "log", languages});
  ModalDriver modal;
  modal.ExpectMessage(61440, wxID_OK);
  frmHidden form(TracingServices());
  form.Form_Load({});
  EXPECT_NE(modal.LastMessage().find("2052"), wxString::npos);
  EXPECT_EQ(trace_.back(), "window");
}

}  // namespace
}  // namespace mindloft::test
