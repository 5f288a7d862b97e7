#include <wx/app.h>

#include "app/EarlyLogin.h"
#include "app/frmHidden.h"
#include "controls/explorer/ctExplorer.h"
#include "core/modShare.h"
#include "mainwindow/ApplicationServices.h"
#include "mainwindow/CommandLineState.h"
#include "mainwindow/frmSysAdmin.h"
#include "platform/ui/Keyboard.h"
#include "platform/ui/WindowHelpers.h"
#include "tests/app/StartFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

/// The console as it really starts, up to the main window.
class HandOverTest : public StartFixture {
 protected:
  void SetUp() override {
    StartFixture::SetUp();
    MakeDirectory();
    SetAutoLogin("1");
    GetApplicationServices().activeMindloft = platform::ActiveMindloft;
    early_ = std::make_unique<EarlyLogin>(file_);
    hidden_ = std::make_unique<frmHidden>(StartServices::Real(file_, [this] { return early_->Open(); }));
  }
  void TearDown() override {
    Shutdown();
    Settle();
    hidden_.reset();
    GetApplicationServices() = {};
    wxTheApp->SetTopWindow(nullptr);
    StartFixture::TearDown();
  }

  void Start(const wxString& commandLine) {
    hidden_->Form_Load(commandLine);
    window_ = dynamic_cast<frmSysAdmin*>(wxTheApp->GetTopWindow());
    ASSERT_TRUE(window_);
    WaitFor([&] { return window_->IsShownOnScreen(); }, "the main window");
  }
  void Send(const wxString& text) {
    bool cancel = true;
    hidden_->Form_LinkExecute(text, cancel);
    EXPECT_FALSE(cancel);
  }
  wxString SelectedText() {
    auto& explorer = window_->Explorer();
    const int node = explorer.SelectedTreeNode();
    return node < 0 ? wxString() : explorer.TreeNodeText(node);
  }

  const platform::FakeShiftKey shift_{false};
  std::unique_ptr<EarlyLogin> early_;
  std::unique_ptr<frmHidden> hidden_;
  frmSysAdmin* window_ = nullptr;
};

TEST_F(HandOverTest, ANodesNameInAnyLetterCaseIsSelectedAndAMinimisedWindowRestored) {
  Start({});
  const auto roles = GetResource().GetString(59302);
  window_->Iconize(true);
  WaitFor([&] { return window_->IsIconized(); }, "the minimised window");
  Send(roles.Upper());
  WaitFor([&] { return SelectedText() == roles; }, "the selected node");
  WaitFor([&] { return !window_->IsIconized(); }, "the restored window");
  EXPECT_NE(LoggedText().find("selected node \"Roles\""), std::string::npos);

  // Nothing to select: the window comes to the front, and its selection stays.
  for (const wxString& text :
       {wxString(), wxString("no such node"), wxString("\x01\n\t"), wxString('x', 32000), roles.Left(3)}) {
    window_->Iconize(true);
    WaitFor([&] { return window_->IsIconized(); }, "the minimised window");
    Send(text);
    WaitFor([&] { return !window_->IsIconized(); }, "the restored window");
    EXPECT_EQ(SelectedText(), roles);
    EXPECT_EQ(SavedCommandLine(), text);
  }
}

TEST_F(HandOverTest, ACommandLineOfTheFirstInstanceOpensTheDomains) {
  Start(GetResource().GetString(59302));
  auto& explorer = window_->Explorer();
  WaitFor([&] { return explorer.IsTreeNodeExpanded(0); }, "the open root");
  EXPECT_EQ(SelectedText(), explorer.TreeNodeText(0));
}

}  // namespace
}  // namespace mindloft::test
