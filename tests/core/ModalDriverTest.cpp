#include <gtest/gtest-spi.h>
#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {
namespace {

/// A form with a box, a button that needs a text in it, and one that asks.
class SmallForm : public wxDialog {
 public:
  SmallForm()
      : wxDialog(nullptr, wxID_ANY, "small", wxDefaultPosition, wxDefaultSize, wxDEFAULT_DIALOG_STYLE,
                 "frmSmall") {
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    auto* text = new wxTextCtrl(this, wxID_ANY);
    text->SetName("txtName");
    auto* apply = new wxButton(this, wxID_ANY, "apply");
    apply->SetName("cmdApply");
    apply->Disable();
    auto* close = new wxButton(this, wxID_ANY, "close");
    close->SetName("cmdOK");
    for (wxWindow* control :
         {static_cast<wxWindow*>(text), static_cast<wxWindow*>(apply), static_cast<wxWindow*>(close)}) {
      sizer->Add(control);
    }
    SetSizerAndFit(sizer);
    text->Bind(wxEVT_TEXT, [=](wxCommandEvent&) { apply->Enable(!text->IsEmpty()); });
    apply->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
      if (GetMessenger().Ask(59359, 59312, Tessaline::Buttons::YesNoDefaultNo,
                             Tessaline::MessageKind::Question, {}, this)) {
        EndModal(wxID_APPLY);
      }
    });
    close->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EndModal(wxID_OK); });
  }
};

class ModalDriverTest : public PrivateServices {
 public:
  static int Show() {
    SmallForm form;
    return form.ShowModal();
  }
};

TEST_F(ModalDriverTest, DrivesAFormAndItsMessage) {
  ModalDriver modal;
  modal.ExpectForm("frmSmall", [](User& user) {
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    user.Type("txtName", wxString::FromUTF8("n\u00f6"));
    EXPECT_EQ(user.Read("txtName"), wxString::FromUTF8("n\u00f6"));
    user.Click("cmdApply");
  });
  modal.ExpectMessage(59359, wxID_YES);
  EXPECT_EQ(Show(), wxID_APPLY);
  EXPECT_EQ(modal.LastMessage(), "Delete the selected user? This cannot be undone.");
}

TEST_F(ModalDriverTest, RefusesWhatAPersonCouldNotDo) {
  struct Case {
    const char* failure;
    ModalDriver::Script script;
  };
  for (const auto& [failure, script] : {
           Case{"cmdApply is disabled", [](User& user) { user.Click("cmdApply"); }},
           Case{"cmdNone is missing", [](User& user) { user.Click("cmdNone"); }},
           Case{"txtName is no button", [](User& user) { user.Click("txtName"); }},
           Case{"txtName is hidden",
                [](User& user) {
                  user.Find("txtName").Hide();
                  user.Type("txtName", "x");
                }},
           Case{"txtName takes no text",
                [](User& user) {
                  user.Find<wxTextCtrl>("txtName").SetEditable(false);
                  user.Type("txtName", "x");
                }},
           Case{"left open: frmSmall", [](User&) {}},
       }) {
    testing::TestPartResultArray results;
    {
      testing::ScopedFakeTestPartResultReporter reporter(
          testing::ScopedFakeTestPartResultReporter::INTERCEPT_ALL_THREADS, &results);
      ModalDriver modal;
      modal.ExpectForm("frmSmall", script);
      Show();
    }
    ASSERT_EQ(results.size(), 1) << failure;
    EXPECT_NE(std::string(results.GetTestPartResult(0).message()).find(failure), std::string::npos)
        << results.GetTestPartResult(0).message();
  }
}

TEST_F(ModalDriverTest, UnexpectedAndMissingWindowsFail) {
  EXPECT_NONFATAL_FAILURE(
      {
        ModalDriver modal;
        Show();
      },
      "unexpected modal window: frmSmall");
  EXPECT_NONFATAL_FAILURE(
      {
        ModalDriver modal;
        modal.ExpectMessage(55101, wxID_OK);
      },
      "never shown: message 55101");
}

}  // namespace
}  // namespace mindloft::test
