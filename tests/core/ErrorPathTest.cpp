#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/frame.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/textctrl.h>

#include "backend/tessaline/Text.h"
#include "core/ErrorHandling.h"
#include "core/frmErrorManager.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::HasSubstr;
using testing::Not;

void Store(const Error& like) try {
  throw Error(like.Number(), like.Description(), like.Parameters());
} catch (...) {
  Raise("Directory", "Store");
}

void SaveRoles(const Error& error) try { Store(error); } catch (...) {
  Raise("frmUserDetail", "SaveRoles");
}

void cmdApply_Click(const Error& error) try { SaveRoles(error); } catch (...) {
  ShowError("frmUserDetail", "cmdApply_Click");
}

class ErrorPathTest : public PrivateServices {
 protected:
  /// Lets the event procedure fail with the error, and the user look at the dialog and close it.
  void Fail(const Error& error, ModalDriver::Script look) {
    ModalDriver modal;
    modal.ExpectForm("frmErrorManager", [&](User& user) {
      look(user);
      user.Click("cmdOK");
    });
    cmdApply_Click(error);
  }
};

TEST_F(ErrorPathTest, AnErrorThreeProceduresDeepIsRecordedByAllThreeAndShownOnce) {
  Error error(ErrorNumber::Conflict, "version 3, found 4; user 17", {"anna", "bert", "2026-01-01T10:00:00Z"});
  Fail(error, [](User& user) {
    WaitFor([&] { return user.Form().GetClientSize().y >= user.Form().GetSizer()->GetMinSize().y; },
            "room for all controls");
    EXPECT_EQ(user.Title(), "Mindloft: Warning ('60040')");
    EXPECT_EQ(user.Read("txtMessage"),
              "Runtime error at Store of Directory; SaveRoles of frmUserDetail; cmdApply_Click of "
              "frmUserDetail");
    EXPECT_THAT(ToUtf8(user.Find("lblHeadline").GetLabel()), HasSubstr("anna was changed meanwhile by bert"));
    EXPECT_THAT(ToUtf8(user.Read("txtMoreInfomation")), HasSubstr("\nversion 3, found 4\nuser 17"));
  });
  auto log = LoggedText();
  EXPECT_THAT(log, HasSubstr("error 60040 Directory.Store line "));
  EXPECT_THAT(log, Not(HasSubstr("error 60040 Directory.Store line 0:")));
  EXPECT_THAT(log,
              HasSubstr("error 60040 frmUserDetail.SaveRoles line 0: version 3, found 4; user 17 [anna]"));
  EXPECT_THAT(log, HasSubstr("error 60040 frmUserDetail.cmdApply_Click line 0:"));
}

TEST_F(ErrorPathTest, NumbersBelow10000AreSystemErrorsAndOthersAreApplicationErrors) {
  struct Case {
    int number;
    const char* title;
    const char* picture;
  };
  for (auto [number, title, picture] :
       {Case{9999, "Mindloft: Error ('9999')", "Critical"}, Case{75, "Mindloft: Error ('75')", "Critical"},
        Case{10000, "Mindloft: Information ('10000')", "Information"},
        Case{60043, "Mindloft: Warning ('60043')", "Exclamation"},
        Case{60004, "Mindloft: Error ('60004')", "Critical"},
        Case{60049, "Mindloft: Information ('60049')", "Information"}}) {
    EXPECT_EQ(IsSystemError(std::to_string(number)), number < 10000);
    Fail(Error(static_cast<ErrorNumber>(number)), [=](User& user) {
      EXPECT_EQ(user.Title(), title);
      EXPECT_EQ(dynamic_cast<frmErrorManager&>(user.Form()).Picture(), picture) << number;
    });
  }
  EXPECT_FALSE(IsSystemError("")) << "no number";
  EXPECT_FALSE(IsSystemError("75x")) << "no number";
}

TEST_F(ErrorPathTest, AKindThatIsNoneKeepsTheDefaultPictureAndEachKindHasItsOwn) {
  struct Case {
    int kind;
    const char* picture;
  };
  for (auto [kind, picture] : {Case{16, "Critical"}, Case{32, "Question"}, Case{48, "Exclamation"},
                               Case{64, "Information"}, Case{17, "Information"}, Case{0, "Information"}}) {
    ModalDriver modal;
    modal.ExpectForm("frmErrorManager", [=](User& user) {
      EXPECT_EQ(dynamic_cast<frmErrorManager&>(user.Form()).Picture(), picture) << kind;
      user.Click("cmdOK");
    });
    frmErrorManager dialog;
    int result = -1;
    dialog.Dispaly("caption", "message", kind, "", false, result);
    EXPECT_EQ(result, wxID_OK);
  }
}

TEST_F(ErrorPathTest, TheDetailsAreShownByButtonAndByKeyAndOnlyWhenThereAreSome) {
  ModalDriver modal;
  modal.ExpectForm("frmErrorManager", [](User& user) {
    auto& form = user.Form();
    int closedHeight = form.GetSize().y;
    EXPECT_FALSE(user.IsShown("txtMoreInfomation"));
    user.Press('D');
    EXPECT_TRUE(user.IsShown("txtMoreInfomation"));
    EXPECT_GT(form.GetSize().y, closedHeight);
    EXPECT_EQ(user.Find("txtMoreInfomation").GetSize(), user.Find("picMoreInfoMation").GetClientSize());
    EXPECT_EQ(user.Read("cmdMoreInfomation"), "Hide &details");
    user.Click("cmdMoreInfomation");
    EXPECT_FALSE(user.IsShown("txtMoreInfomation"));
    EXPECT_EQ(form.GetSize().y, closedHeight);
    user.Press(WXK_RETURN);
  });
  modal.ExpectForm("frmErrorManager", [](User& user) {
    EXPECT_FALSE(user.IsShown("cmdMoreInfomation"));
    user.Press('D');
    EXPECT_FALSE(user.IsShown("txtMoreInfomation"));
    user.Press(WXK_ESCAPE);
  });
  for (const char* details : {"first\nsecond", ""}) {
    frmErrorManager dialog;
    int result = 0;
    dialog.Dispaly("caption", "message", 16, details, true, result);
    EXPECT_EQ(result, wxID_OK);
  }
}

TEST_F(ErrorPathTest, TheMessageNeverHoldsTheCaretAndLongTextsStayOnTheScreen) {
  std::string longText(4000, 'x');
  for (std::size_t at = 60; at < longText.size(); at += 61) longText[at] = ' ';
  Fail(Error(ErrorNumber::NameExists, longText, {longText.substr(0, 500)}), [](User& user) {
    user.Find("txtMessage").SetFocus();
    WaitFor([&] { return user.Find("cmdOK").HasFocus(); }, "the focus on cmdOK");
    user.Click("cmdMoreInfomation");
    Settle();
    EXPECT_LT(user.Form().GetSize().y, 700);
    EXPECT_LT(user.Form().GetSize().x, 900);
  });
}

TEST_F(ErrorPathTest, AnErrorWhileOneIsShownIsLoggedAndNotShown) {
  Fail(Error(ErrorNumber::Storage, "outer"),
       [](User&) { Guarded("Timer1", "Timer", [] { throw std::runtime_error("inner"); }); });
  EXPECT_THAT(LoggedText(), HasSubstr("error 5 Timer1.Timer line 0: inner"));
  EXPECT_FALSE(IsSystemError("60001"));
}

TEST_F(ErrorPathTest, QuietProceduresOnlyReport) {
  try {
    throw Error(ErrorNumber::Registry, "no key");
  } catch (...) {
    ReportOnly("modShare", "SetFormPos");
  }
  EXPECT_THAT(LoggedText(), HasSubstr("error 76 modShare.SetFormPos line 0: no key"));
}

}  // namespace
}  // namespace mindloft::test
