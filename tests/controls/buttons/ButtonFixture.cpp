#include "tests/controls/buttons/ButtonFixture.h"

#include <wx/sizer.h>
#include <wx/utils.h>

#include <algorithm>

#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

bool AreEqual(const wxImage& one, const wxImage& other) {
  return one.GetSize() == other.GetSize() &&
         std::equal(one.GetData(), one.GetData() + one.GetWidth() * one.GetHeight() * 3, other.GetData());
}

void ButtonFixture::SetUp() {
  PrivateServices::SetUp();
  sound_ = std::make_unique<platform::FakeSound>([this](const std::string& name) {
    log_.push_back("sound " + name);
    return true;
  });
  shell_ = std::make_unique<platform::FakeShell>([this](const std::string& target) {
    log_.push_back("open " + target);
    return shellAnswer_;
  });
  dialog_ = new wxDialog(nullptr, wxID_ANY, "buttons", wxPoint(300, 200));
  before_ = new wxTextCtrl(dialog_, wxID_ANY);
  button_ = new MyButton(dialog_, "cmdTried");
  after_ = new wxTextCtrl(dialog_, wxID_ANY, wxString(), wxDefaultPosition, wxSize(200, 80), wxTE_MULTILINE);
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  for (wxWindow* each :
       {static_cast<wxWindow*>(before_), static_cast<wxWindow*>(button_), static_cast<wxWindow*>(after_)})
    sizer->Add(each, wxSizerFlags().Border(wxALL, 20));
  dialog_->SetSizerAndFit(sizer);
  Watch(*button_);
  dialog_->Show();
  dialog_->Raise();
  before_->SetFocus();
  WaitFor([this] { return dialog_->IsActive() && before_->HasFocus(); }, "the dialog in front");
  PointAway();
  WaitFor([this] { return button_->picBuffer().IsOk(); }, "the first picture");
  log_.clear();
}

void ButtonFixture::TearDown() {
  dialog_->Destroy();
  Settle();
  sound_.reset();
  shell_.reset();
  PrivateServices::TearDown();
}

void ButtonFixture::Watch(MyButton& button) {
  const auto tell = [this](const std::string& name, std::initializer_list<int> arguments) {
    std::string line = name;
    for (const int each : arguments) line += " " + std::to_string(each);
    log_.push_back(line);
  };
  button.Click = [tell] { tell("Click", {}); };
  button.KeyDown = [tell](int key, int shift) { tell("KeyDown", {key, shift}); };
  button.KeyPress = [tell](int key) { tell("KeyPress", {key}); };
  button.KeyUp = [tell](int key, int shift) { tell("KeyUp", {key, shift}); };
  button.MouseDown = [tell](int which, int shift, int, int) { tell("MouseDown", {which, shift}); };
  button.MouseMove = [tell](int which, int shift, int, int) { tell("MouseMove", {which, shift}); };
  button.MouseUp = [tell](int which, int shift, int, int) { tell("MouseUp", {which, shift}); };
  button.MouseEnter = [tell](std::int16_t which) { tell("MouseEnter", {which}); };
  button.MouseLeave = [tell](std::int16_t which) { tell("MouseLeave", {which}); };
}

wxPoint ButtonFixture::Middle() const {
  const wxSize size = button_->GetClientSize();
  return {size.x / 2, size.y / 2};
}

void ButtonFixture::PointAt(const wxWindow& window, wxPoint place) {
  const wxPoint screen = window.ClientToScreen(place);
  WaitFor(
      [&] {
        // Coming from beside: a pointer that is there already would tell nothing.
        simulator_.MouseMove(screen + wxPoint(1, 0));
        simulator_.MouseMove(screen);
        return wxGetMousePosition() == screen;
      },
      "the pointer");
}

void ButtonFixture::PointAway() {
  WaitFor(
      [&] {
        simulator_.MouseMove(5, 5);
        return wxGetMousePosition() == wxPoint(5, 5);
      },
      "the pointer in the corner");
}

void ButtonFixture::Press(int key, int modifiers) {
  simulator_.Char(key, modifiers);
}

Log ButtonFixture::Told() {
  Log told;
  std::copy_if(log_.begin(), log_.end(), std::back_inserter(told),
               [](const std::string& line) { return !line.starts_with("MouseMove"); });
  log_.clear();
  return told;
}

Log ButtonFixture::LogUntil(const std::string& last) {
  WaitFor([&] { return std::find(log_.begin(), log_.end(), last) != log_.end(); }, last);
  Settle();
  return Told();
}

void ButtonFixture::WaitForFace(const std::function<bool(const wxImage&)>& condition,
                                const std::string& what) {
  WaitFor([&] { return condition(Face()); }, what);
}

}  // namespace mindloft::test
