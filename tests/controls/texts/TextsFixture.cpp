#include "tests/controls/texts/TextsFixture.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/sizer.h>

#include <utility>

#include "tests/support/gui/Keyboard.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

void TextsFixture::SetUp() {
  PrivateServices::SetUp();
  frame_ = new wxFrame(nullptr, wxID_ANY, "texts", wxDefaultPosition, wxSize(500, 300), wxDEFAULT_FRAME_STYLE,
                       "frmLogin");
  label_ = new wxStaticText(frame_, wxID_ANY, "&Name:");
  user_ = std::make_unique<User>(*frame_);
}

void TextsFixture::TearDown() {
  user_.reset();
  frame_->Destroy();
  Settle();
  PrivateServices::TearDown();
}

void TextsFixture::Record(TextBoxEvents& events) {
  const auto record = [this](std::string event) { events_.push_back(std::move(event)); };
  events.KeyDown = [=](int key, int shift) {
    record("KeyDown " + std::to_string(key) + "," + std::to_string(shift));
  };
  events.KeyUp = [=](int key, int) { record("KeyUp " + std::to_string(key)); };
  events.MouseDown = [=](int button, int shift, int, int) {
    record("MouseDown " + std::to_string(button) + "," + std::to_string(shift));
  };
  events.MouseUp = [=](int button, int, int, int) { record("MouseUp " + std::to_string(button)); };
  events.Change = [=] { record("Change"); };
  events.Click = [=] { record("Click"); };
  events.DblClick = [=] { record("DblClick"); };
}

void TextsFixture::Place(wxWindow& control) {
  other_ = new wxTextCtrl(frame_, wxID_ANY, "other", wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator,
                          "txtOther");
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(label_);
  sizer->Add(&control, wxSizerFlags(1).Expand().Border());
  sizer->Add(other_);
  frame_->SetSizer(sizer);
  frame_->Show();
  WaitFor([&] { return frame_->IsShownOnScreen() && control.GetSize().x > 100; },
          "the control on the screen");
  control.SetFocus();
  WaitFor([&] { return wxWindow::FindFocus() && wxWindow::FindFocus() != other_; },
          "the focus in the control");
  Settle();
  events_.clear();
}

void TextsFixture::Type(const wxString& text, const char* name) {
  EditBox& box = Box(name);
  for (const wxUniChar each : text) {
    if (!SendKey(box, static_cast<int>(each.GetValue())) && box.IsEditable()) box.WriteText(wxString(each));
  }
}

void TextsFixture::Click(wxEventType type, const char* name, wxPoint place) {
  wxMouseEvent event(type);
  EditBox& box = Box(name);
  event.SetEventObject(&box);
  event.SetPosition(place);
  box.HandleWindowEvent(event);
}

void TextsFixture::SetClipboard(const wxString& text) {
  ASSERT_TRUE(wxTheClipboard->Open());
  wxTheClipboard->SetData(new wxTextDataObject(text));
  wxTheClipboard->Close();
}

wxString TextsFixture::Clipboard() {
  wxTextDataObject data;
  const wxClipboardLocker lock;
  if (!lock || !wxTheClipboard->GetData(data)) return {};
  return data.GetText();
}

void TextsFixture::Paste(const wxString& text, const char* name) {
  SetClipboard(text);
  Box(name).Paste();
  Settle();
}

void TextsFixture::Leave() {
  other_->SetFocus();
  WaitFor([this] { return other_->HasFocus(); }, "the focus in the other box");
  Settle();
}

std::vector<std::string> TextsFixture::Events() {
  return std::exchange(events_, {});
}

}  // namespace mindloft::test
