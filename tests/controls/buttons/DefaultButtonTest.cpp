#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include "controls/buttons/UserLine.h"
#include "controls/buttons/useDefaultButton.h"
#include "tests/controls/bag/RoundTrip.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAre;
using testing::IsEmpty;

/// A dialog with a line, a box of lines and a useDefaultButton, and the real keyboard in front of it.
class DefaultButtonTest : public PrivateServices {
 protected:
  void SetUp() override {
    PrivateServices::SetUp();
    dialog_ = new wxDialog(nullptr, wxID_ANY, "default", wxPoint(300, 200));
    line_ = new wxTextCtrl(dialog_, wxID_ANY);
    lines_ = new wxTextCtrl(dialog_, wxID_ANY, "one", wxDefaultPosition, wxSize(200, 80), wxTE_MULTILINE);
    button_ = new useDefaultButton(dialog_, "cmdOK");
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    for (wxWindow* each : std::initializer_list<wxWindow*>{line_, lines_, button_})
      sizer->Add(each, wxSizerFlags().Border(wxALL, 10));
    dialog_->SetSizerAndFit(sizer);
    button_->Click = [this] { log_.emplace_back("Click"); };
    dialog_->Show();
    dialog_->Raise();
    WaitFor([this] { return dialog_->IsActive(); }, "the dialog in front");
  }
  void TearDown() override {
    dialog_->Destroy();
    Settle();
    PrivateServices::TearDown();
  }

  void Focus(wxWindow& window) {
    window.SetFocus();
    WaitFor([&] { return window.HasFocus(); }, "the focus");
  }
  void WaitForLog(const std::string& line) {
    WaitFor([&] { return std::find(log_.begin(), log_.end(), line) != log_.end(); }, line);
    Settle();
  }

  wxDialog* dialog_ = nullptr;
  wxTextCtrl* line_ = nullptr;
  wxTextCtrl* lines_ = nullptr;
  useDefaultButton* button_ = nullptr;
  wxUIActionSimulator simulator_;
  std::vector<std::string> log_;
};

TEST_F(DefaultButtonTest, EnterInALineClicksIt) {
  Focus(*line_);
  simulator_.Char(WXK_RETURN);
  WaitForLog("Click");
  EXPECT_THAT(log_, ElementsAre("Click"));
}

TEST_F(DefaultButtonTest, EnterInABoxOfLinesBreaksTheLine) {
  Focus(*lines_);
  lines_->SetInsertionPointEnd();
  simulator_.Char(WXK_RETURN);
  simulator_.Char('A');
  WaitFor([this] { return lines_->GetValue() == "one\na"; }, "the second line");
  simulator_.Char(WXK_RETURN, wxMOD_CONTROL);
  simulator_.Char('B');
  WaitFor([this] { return lines_->GetValue() == "one\na\nb"; }, "the third line");
  EXPECT_THAT(log_, IsEmpty());
  EXPECT_TRUE(dialog_->IsShown());
}

TEST_F(DefaultButtonTest, AClickThatComesWhileABoxOfLinesHasTheFocusBelongsToTheBox) {
  Focus(*lines_);
  lines_->SelectAll();
  wxCommandEvent click(wxEVT_BUTTON, button_->Command1().GetId());
  click.SetEventObject(&button_->Command1());
  button_->Command1().HandleWindowEvent(click);
  EXPECT_EQ(lines_->GetValue(), "\n");
  // The box's own handlers see the key, and may take it.
  int code = 0, modifiers = 0;
  lines_->Bind(wxEVT_KEY_DOWN, [&](wxKeyEvent& event) {
    code = event.GetKeyCode();
    modifiers = event.GetModifiers();
  });
  button_->Command1().HandleWindowEvent(click);
  EXPECT_EQ(code, WXK_RETURN);
  EXPECT_EQ(modifiers, wxMOD_CONTROL);
  EXPECT_EQ(lines_->GetValue(), "\n");
  lines_->SetEditable(false);
  button_->Command1().HandleWindowEvent(click);
  EXPECT_EQ(lines_->GetValue(), "\n");
  EXPECT_THAT(log_, IsEmpty());
}

TEST_F(DefaultButtonTest, ItsAccessKeyClicksFromABoxOfLinesToo) {
  button_->SetCaption("&OK");
  Focus(*lines_);
  simulator_.Char('O', wxMOD_ALT);
  WaitForLog("Click");
  EXPECT_EQ(lines_->GetValue(), "one");
}

TEST_F(DefaultButtonTest, TellsTheEventsOfItsButton) {
  button_->KeyDown = [this](int& key, int shift) {
    log_.push_back(wxString::Format("KeyDown %d %d", key, shift).utf8_string());
  };
  button_->KeyUp = [this](int& key, int) { log_.push_back(wxString::Format("KeyUp %d", key).utf8_string()); };
  button_->MouseDown = [this](int which, int, int, int) {
    log_.push_back(wxString::Format("MouseDown %d", which).utf8_string());
  };
  button_->MouseUp = [this](int which, int, int, int) {
    log_.push_back(wxString::Format("MouseUp %d", which).utf8_string());
  };
  Focus(button_->Command1());
  simulator_.Char(WXK_SPACE);
  WaitForLog("KeyUp 32");
  WaitForLog("Click");
  EXPECT_EQ(log_.front(), "KeyDown 32 0");
  log_.clear();
  const wxSize size = button_->Command1().GetSize();
  simulator_.MouseMove(button_->Command1().ClientToScreen(wxPoint(size.x / 2, size.y / 2)));
  simulator_.MouseClick();
  WaitForLog("MouseUp 1");
  WaitForLog("Click");
  EXPECT_EQ(log_.front(), "MouseDown 1");
}

TEST_F(DefaultButtonTest, KeepsItsProperties) {
  ExpectDefaults<useDefaultButton>("useDefaultButton", {{"BackColor", "&H8000000F"},
                                                        {"Enabled", "True"},
                                                        {"Font", ""},
                                                        {"ForeColor", "&H80000012"},
                                                        {"Caption", "ctlTried"},
                                                        {"BorderStyle", "0"},
                                                        {"Appearance", "1"},
                                                        {"BackStyle", "1"}});
  ExpectRoundTrips<useDefaultButton>("useDefaultButton", {"Sans, 14.5, Bold"});
  ExpectRefusals("useDefaultButton", "Enabled");
}

TEST_F(DefaultButtonTest, TheRuleIsAsWideAsItsControl) {
  UserLine line(dialog_);
  for (const int width : {10, 300}) {
    line.SetSize(width, line.GetBestSize().y);
    Settle();
    for (const auto& shape : {line.Line1(), line.Line2()}) EXPECT_EQ(shape.place.width, width);
  }
  EXPECT_EQ(line.Line2().place.y, line.Line1().place.y + line.Line1().place.height);
  EXPECT_EQ(line.GetBestSize().y, line.Line1().place.height + line.Line2().place.height);
  EXPECT_EQ(line.Line1().colour, kButtonShadowColour);
  EXPECT_EQ(line.Line2().colour, k3DHighlightColour);
  EXPECT_FALSE(line.AcceptsFocusFromKeyboard());
  ExpectDefaults<UserLine>("UserLine", {});
}

}  // namespace mindloft::test
