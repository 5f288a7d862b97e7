#include "tests/controls/numbers/NumbersFixture.h"

#include <wx/sizer.h>
#include <wx/stattext.h>

#include <utility>

#include "tests/support/gui/Keyboard.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

void SendMouse(wxWindow& window, wxEventType type, bool leftDown) {
  wxMouseEvent event(type);
  event.SetEventObject(&window);
  event.SetLeftDown(leftDown);
  window.HandleWindowEvent(event);
}

}  // namespace

void NumbersFixture::SetUp() {
  PrivateServices::SetUp();
  form_ = new wxDialog(nullptr, wxID_ANY, "numbers", wxDefaultPosition, wxSize(500, 200));
  label_ = new wxStaticText(form_, wxID_ANY, "&Port:");
  user_ = std::make_unique<User>(*form_);
}

void NumbersFixture::TearDown() {
  user_.reset();
  form_->Destroy();
  Settle();
  PrivateServices::TearDown();
}

void NumbersFixture::Show(SpunBox& control) {
  control_ = &control;
  other_ = new wxTextCtrl(form_, wxID_ANY, "other", wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator,
                          "txtOther");
  auto* sizer = new wxBoxSizer(wxHORIZONTAL);
  sizer->Add(label_);
  sizer->Add(&control, 0, wxALL, 5);
  sizer->Add(other_);
  form_->SetSizer(sizer);
  for (wxWindow* child : control.GetChildren()) {
    if (auto* box = dynamic_cast<wxTextCtrl*>(child)) box_ = box;
    if (auto* arrows = dynamic_cast<SpinArrows*>(child)) arrows_ = arrows;
  }
  control.Change = [this] { events_.push_back("Change " + Text().utf8_string()); };
  control.KeyDown = [this](int key, int shift) {
    events_.push_back("KeyDown " + std::to_string(key) + "," + std::to_string(shift));
  };
  control.KeyPress = [this](int& key) { events_.push_back("KeyPress " + std::to_string(key)); };
  control.KeyUp = [this](int key, int) { events_.push_back("KeyUp " + std::to_string(key)); };
  // The toolkit calls a window focused that only will be: the events tell when it is.
  box_->Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
    focused_ = true;
    event.Skip();
  });
  box_->Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
    focused_ = false;
    event.Skip();
  });
  form_->Show();
  form_->Raise();
  WaitFor([this] { return form_->IsActive() && box_->GetSize().x > 10; }, "the form in front");
  Enter();
}

void NumbersFixture::Enter() {
  control_->SetFocus();
  WaitFor([this] { return focused_; }, "the focus in the control's box");
  Settle();
}

void NumbersFixture::Type(const wxString& text) {
  for (const wxUniChar each : text) {
    if (!SendKey(*box_, static_cast<int>(each.GetValue()))) box_->WriteText(wxString(each));
    Settle();
  }
}

void NumbersFixture::Paste(const wxString& text) {
  box_->WriteText(text);
  Settle();
}

void NumbersFixture::ReplaceAll(const wxString& text) {
  box_->SetSelection(-1, -1);
  Paste(text);
}

void NumbersFixture::StepArrow(bool up) {
  wxSpinEvent event(up ? wxEVT_SPIN_UP : wxEVT_SPIN_DOWN, arrows_->GetId());
  event.SetEventObject(arrows_);
  arrows_->HandleWindowEvent(event);
  EXPECT_FALSE(event.IsAllowed());
}

void NumbersFixture::HoldArrow(bool up, int steps) {
  SendMouse(*arrows_, wxEVT_LEFT_DOWN, true);
  for (int step = 0; step < steps; ++step) StepArrow(up);
  SendMouse(*arrows_, wxEVT_LEFT_UP, false);
  Settle();
}

void NumbersFixture::TurnWheel(wxWindow& over, int rotation) {
  wxMouseEvent event(wxEVT_MOUSEWHEEL);
  event.SetEventObject(&over);
  event.m_wheelDelta = 120;
  event.m_wheelRotation = rotation;
  over.HandleWindowEvent(event);
}

void NumbersFixture::Leave() {
  other_->SetFocus();
  WaitFor([this] { return !focused_; }, "the focus in the other box");
  Settle();
}

std::vector<std::string> NumbersFixture::Events() {
  return std::exchange(events_, {});
}

}  // namespace mindloft::test
