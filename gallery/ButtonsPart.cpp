#include "gallery/ButtonsPart.h"

#include <wx/sizer.h>
#include <wx/stattext.h>

#include "controls/buttons/useDefaultButton.h"
#include "gallery/ShownButton.h"

namespace mindloft {
namespace {

struct Shown {
  const char* caption;
  ButtonState state;
};

constexpr Shown kStates[] = {
    {"Idle", {}},
    {"Hovered", {true, true, false, false, false, false}},
    {"Pressed", {true, true, true, false, false, false}},
    {"&Focused", {true, false, false, true, false, false}},
    {"Default", {true, false, false, false, true, false}},
    {"&Disabled", {false, false, false, false, false, false}},
};

/// The looks that a row shows in every state.
struct Look {
  const char* name;
  std::int16_t raised;
  std::int16_t edged;
  std::int16_t xpStyle;
};

constexpr Look kLooks[] = {
    {"flat", 0, 0, 0},    {"Raised", 1, 0, 0},          {"BorderEdged", 0, 1, 0},
    {"XPStyle", 0, 0, 1}, {"XPStyle, Raised", 1, 0, 1},
};

constexpr int kGap = 6;

}  // namespace

ButtonsPart::ButtonsPart(wxWindow* parent, Tell tell) : GalleryPart(parent, "ButtonsPart", std::move(tell)) {
  Fill();
}

void ButtonsPart::AddStates() {
  auto* panel = Find<wxPanel>("pnlStates");
  auto* grid = new wxFlexGridSizer(1 + static_cast<int>(std::size(kStates)), FromDIP(wxSize(kGap, kGap)));
  for (const Look& look : kLooks) {
    grid->Add(new wxStaticText(panel, wxID_ANY, look.name), wxSizerFlags().CenterVertical());
    for (const Shown& shown : kStates) {
      auto* button = new ShownButton(panel, "cmdShown", shown.state);
      button->SetCaption(shown.caption);
      button->SetPicture(ControlPicture("user"));
      button->SetPictureWidth(16);
      button->SetPictureHeight(16);
      button->SetRAISED(look.raised);
      button->SetBorderEdged(look.edged);
      button->SetBorderEdgedColor(kButtonShadowColour);
      button->SetXPStyle(look.xpStyle);
      grid->Add(button, wxSizerFlags().Expand());
    }
  }
  panel->SetSizer(grid);
}

void ButtonsPart::TellEvents(MyButton& button) const {
  const wxString name = button.GetName();
  const auto tell = [this, name](const char* event, const wxString& arguments) {
    return TellEvent(name, event, arguments);
  };
  button.Click = [tell] { tell("Click", {}); };
  button.KeyPress = [tell](int& key) { tell("KeyPress", wxString::Format("%d", key)); };
  button.MouseUp = [tell](int which, int shift, int x, int y) {
    tell("MouseUp", wxString::Format("%d, %d at %d, %d", which, shift, x, y));
  };
  button.MouseEnter = [tell](std::int16_t held) { tell("MouseEnter", wxString::Format("%d", held)); };
  button.MouseLeave = [tell](std::int16_t held) { tell("MouseLeave", wxString::Format("%d", held)); };
}

void ButtonsPart::Fill() {
  AddStates();
  Find<MyButton>("cmdDots")->SetCaptionPosition(CaptionPosition::Left);
  for (wxWindow* child : GetChildren()) {
    if (auto* button = dynamic_cast<MyButton*>(child)) TellEvents(*button);
  }
  auto* accept = Find<useDefaultButton>("cmdDefault");
  accept->Click = [this] { TellEvent("cmdDefault", "Click"); };
}

}  // namespace mindloft
