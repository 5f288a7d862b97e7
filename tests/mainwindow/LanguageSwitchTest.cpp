#include <gtest/gtest.h>
#include <wx/bookctrl.h>

#include "backend/errors/Error.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/ErrorHandling.h"
#include "mainwindow/CommandSet.h"
#include "mainwindow/DirectoryTree.h"
#include "tests/mainwindow/MainWindowTest.h"
#include "tests/support/gui/FormLooks.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

/// Every form that the main window leads to, in every language.
class LanguageSwitchTest : public MainWindowTest {
 protected:
  void SelectRow(const wxString& name) {
    for (std::int64_t row = 0; row < Explorer().ListCount(); ++row)
      if (Explorer().ListRow(row).fields.BeforeFirst(wxUniChar(1)) == name) Explorer().SelectListRow(row);
    ASSERT_EQ(Explorer().SelectedListCount(), 1) << name.utf8_string();
    Settle();
  }
  void Run(const char* name) {
    const auto* command = form_->Commands().Find(name);
    ASSERT_TRUE(command && CommandSet::Enabled(*command, form_->Selection().Read())) << name;
    form_->Commands().Run(*command, form_->Selection().Read());
    Settle();
  }
  static const wxTopLevelWindow& TopLevel(const User& user) {
    return dynamic_cast<const wxTopLevelWindow&>(user.Form());
  }
  static void LookAt(const wxTopLevelWindow& form, std::size_t least) {
    ExpectLooks(form, least, {"Quotation"});
  }
  /// Opens the form once for each of its pages, looks at the page in each language and leaves.
  void LookAtPages(const char* form, const char* leave, const char* notebook, std::size_t least,
                   const char* command) {
    int pages = 1;
    for (int page = 0; page < pages; ++page) {
      SCOPED_TRACE("page " + std::to_string(page));
      ModalDriver modal;
      modal.ExpectForm(form, [&](User& user) {
        if (notebook) {
          pages = static_cast<int>(user.Find<wxBookCtrlBase>(notebook).GetPageCount());
          user.SelectPage(notebook, page);
        }
        InEveryLanguage([&] { LookAt(TopLevel(user), least); });
        user.Click(leave);
      });
      Run(command);
    }
  }
};

void FailInProcedure() noexcept try {
  throw Error(ErrorNumber::Conflict, "version 3, found 4", {"anna", "bob", "2026-01-01T10:00:00Z"});
} catch (...) {
  ShowError("frmUserDetail", "cmdApply_Click");
}

TEST_F(LanguageSwitchTest, MainWindowSheetAndErrorDialogFollowTogether) {
  Open();
  Select({"59300", "59301"});
  ModalDriver modal;
  modal.ExpectForm("frmUserDetail", [&](User& sheet) {
    sheet.SelectPage("sstUser", 2);
    modal.ExpectForm("frmErrorManager", [&](User& error) {
      error.Click("cmdMoreInfomation");
      InEveryLanguage([&] {
        LookAt(*form_, 55);
        LookAt(TopLevel(sheet), 10);
        LookAt(TopLevel(error), 3);
        const auto text = GetResource().GetFormatString(60040, {"anna", "bob", "2026-01-01T10:00:00Z"});
        EXPECT_EQ(error.Read("txtMoreInfomation").BeforeFirst('\n'), text);
      });
      error.Click("cmdOK");
    });
    FailInProcedure();
    sheet.Click("cmdCancel");
  });
  form_->NewObject("59303", {}, 0);
}

TEST_F(LanguageSwitchTest, EveryFormFitsAndFollows) {
  Open();
  const std::vector<wxString> alpha = {"59300", "59301", DomainKey("Alpha")};
  const auto below = [&](const char* folder) {
    auto path = alpha;
    path.emplace_back(folder);
    return path;
  };
  struct Case {
    const char* form;
    const char* leave;
    const char* notebook;
    std::size_t least;  ///< texts of the program on each page
    std::vector<wxString> node;
    const char* row;  ///< nullptr: the node itself
    const char* command;
  };
  const std::vector<Case> cases = {
      {"frmUserDetail", "cmdCancel", "sstUser", 9, {"59300", "59303"}, "plain", "mnuFileProperties"},
      {"frmRoleProperty", "cmdCancel", "sstRole", 7, {"59300", "59302"}, nullptr, "mnuFileProperties"},
      {"frmDomainInfo", "cmdCancel", "sstDomain", 7, alpha, nullptr, "mnuFileProperties"},
      {"frmDomainInfo", "cmdCancel", "sstDomain", 7, {"59300", "59301"}, nullptr, "mnuDomainaddNew"},
      {"frmDGroupProperty", "cmdCancel", "sstGroup", 8, below("59304"), "Readers", "mnuFileProperties"},
      {"frmDUserAdd", "cmdCancel", nullptr, 6, below("59305"), nullptr, "mnuDUseraddNew"},
      {"frmDUserProperty", "cmdCancel", nullptr, 7, below("59305"), "back\\slash", "mnuFileProperties"},
      {"frmConfiguration", "cmdCancel", nullptr, 9, {"59300"}, nullptr, "mnuToolsConfiguration"},
      {"frmURL", "cmdclose", nullptr, 5, {"59300"}, nullptr, "mnuToolsURL"},
      {"frmStyles", "cmdClose", nullptr, 7, {"59300"}, nullptr, "mnuToolsStyles"},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.form);
    Select(test.node);
    if (test.row)
      SelectRow(test.row);
    else if (test.form == std::string("frmRoleProperty"))
      Explorer().SelectListRow(0);
    LookAtPages(test.form, test.leave, test.notebook, test.least, test.command);
  }
}

TEST_F(LanguageSwitchTest, TheMainWindowFitsAtEveryPlace) {
  Open();
  const auto alpha = DomainKey("Alpha");
  const std::vector<std::vector<wxString>> places = {{"59300"},
                                                     {"59300", "59301"},
                                                     {"59300", "59302"},
                                                     {"59300", "59303"},
                                                     {"59300", "59301", alpha},
                                                     {"59300", "59301", alpha, "59304"},
                                                     {"59300", "59301", alpha, "59305"}};
  for (const auto& place : places) {
    Select(place);
    InEveryLanguage([&] { LookAt(*form_, 55); });
  }
  Select({"59300", "59303"});
  Explorer().SelectAllListRows();
  Explorer().SetFilter("a");
  InEveryLanguage([&] { LookAt(*form_, 55); });
}

}  // namespace
}  // namespace mindloft::test
