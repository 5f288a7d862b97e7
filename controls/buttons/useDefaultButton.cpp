#include "controls/buttons/useDefaultButton.h"

#include <wx/button.h>
#include <wx/dcclient.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "controls/ControlKeys.h"
#include "controls/buttons/AccessKey.h"
#include "controls/buttons/ButtonCaption.h"
#include "controls/buttons/ButtonEdges.h"
#include "controls/buttons/LineBreak.h"
#include "controls/buttons/MouseButtons.h"
#include "controls/buttons/RaiseEvent.h"

namespace mindloft {
namespace {

constexpr const char* kClass = "useDefaultButton";
constexpr int kBorder = 1;  // pixels at 96 dpi

}  // namespace

wxIMPLEMENT_DYNAMIC_CLASS(useDefaultButton, wxPanel);

useDefaultButton::useDefaultButton() = default;

useDefaultButton::useDefaultButton(wxWindow* parent, const wxString& name) {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

bool useDefaultButton::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                              long style, const wxString& name) {
  const long used = (style & ~wxBORDER_MASK) | wxBORDER_NONE | wxTAB_TRAVERSAL;
  if (!wxPanel::Create(parent, id, position, size, used, name)) return false;
  command1_ =
      new wxButton(this, wxID_ANY, name, wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, "Command1");
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(command1_, wxSizerFlags(1).Expand());
  SetSizer(sizer);
  BindEvents();
  ReadProperties({});
  command1_->SetDefault();
  SetInitialSize(size);
  return true;
}

void useDefaultButton::BindEvents() {
  BindFormKeys();
  Bind(wxEVT_PAINT, &useDefaultButton::OnPaint, this);
  Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
    ShowColours();
    event.Skip();
  });
  command1_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Command1_Click(); });
  const auto key = [this](wxKeyEvent& event, const char* name,
                          const std::function<void(int&, int)>& handler) {
    int code = ControlKeyCode(event);
    event.Skip();
    if (RaiseEvent(*this, kClass, name, handler, code, ShiftState(event)) && code == 0) event.Skip(false);
  };
  command1_->Bind(wxEVT_KEY_DOWN, [this, key](wxKeyEvent& event) { key(event, "KeyDown", KeyDown); });
  command1_->Bind(wxEVT_KEY_UP, [this, key](wxKeyEvent& event) { key(event, "KeyUp", KeyUp); });
  command1_->Bind(wxEVT_CHAR, [this](wxKeyEvent& event) {
    int character = TypedCharacter(event);
    event.Skip();
    if (character == 0) return;
    if (RaiseEvent(*this, kClass, "KeyPress", KeyPress, character) && character == 0) event.Skip(false);
  });
  const auto mouse = [this](wxMouseEvent& event, const char* name, int button,
                            const std::function<void(int, int, int, int)>& handler) {
    event.Skip();
    RaiseEvent(*this, kClass, name, handler, button, ShiftState(event), event.GetX(), event.GetY());
  };
  for (const auto& down : {wxEVT_LEFT_DOWN, wxEVT_MIDDLE_DOWN, wxEVT_RIGHT_DOWN})
    command1_->Bind(
        down, [this, mouse](wxMouseEvent& event) { mouse(event, "MouseDown", ButtonOf(event), MouseDown); });
  for (const auto& up : {wxEVT_LEFT_UP, wxEVT_MIDDLE_UP, wxEVT_RIGHT_UP})
    command1_->Bind(
        up, [this, mouse](wxMouseEvent& event) { mouse(event, "MouseUp", ButtonOf(event), MouseUp); });
  command1_->Bind(wxEVT_MOTION, [this, mouse](wxMouseEvent& event) {
    mouse(event, "MouseMove", HeldButtons(event), MouseMove);
  });
}

void useDefaultButton::BindFormKeys() {
  if (wxWindow* form = wxGetTopLevelParent(this))
    form->Bind(wxEVT_CHAR_HOOK, &useDefaultButton::OnFormKey, this);
}

bool useDefaultButton::Reparent(wxWindowBase* parent) {
  wxWindow* form = wxGetTopLevelParent(this);
  if (!wxPanel::Reparent(parent)) return false;
  if (form) form->Unbind(wxEVT_CHAR_HOOK, &useDefaultButton::OnFormKey, this);
  BindFormKeys();
  command1_->SetDefault();
  return true;
}

// Some desktops press the button without moving the focus to it, and an access key pressed in a box of lines
// would look like Enter.
void useDefaultButton::OnFormKey(wxKeyEvent& event) {
  event.Skip();
  const bool usable = command1_->IsEnabled() && command1_->IsShownOnScreen();
  if (usable && IsAccessKey(event, ButtonCaption(Caption()).accessKeys)) command1_->SetFocus();
}

void useDefaultButton::Command1_Click() try {
  if (wxTextCtrl* box = FocusedLines())
    BreakLine(*box);
  else
    RaiseEvent(*this, kClass, "Click", Click);
} catch (...) {
  ShowError(kClass, "Command1_Click");
}

void useDefaultButton::OnPaint(wxPaintEvent&) {
  wxPaintDC dc(this);
  if (borderStyle_ == 0) return;
  const bool sunken = appearance_ != 0;
  DrawFrame(dc, GetClientSize(), FromDIP(kBorder), kButtonShadowColour.Resolve(),
            (sunken ? k3DHighlightColour : kButtonShadowColour).Resolve());
}

}  // namespace mindloft
