#include "gallery/TextsPart.h"

#include "controls/texts/UseMultiLineTextBox.h"
#include "controls/texts/UseTextBox.h"
#include "controls/texts/UserEditor.h"
#include "controls/texts/UserText.h"

namespace mindloft {

TextsPart::TextsPart(wxWindow* parent, Tell tell) : GalleryPart(parent, "TextsPart", std::move(tell)) {
  Fill();
}

void TextsPart::TellEvents(const wxString& name, TextBoxEvents& events) const {
  const auto tellKey = [this, name](const char* event) {
    return [this, name, event](int keyCode, int shift) {
      TellEvent(name, event, wxString::Format("%d, %d", keyCode, shift));
    };
  };
  events.KeyDown = tellKey("KeyDown");
  events.KeyUp = tellKey("KeyUp");
  const auto tellMouse = [this, name](const char* event) {
    return [this, name, event](int button, int shift, int x, int y) {
      TellEvent(name, event, wxString::Format("%d, %d at %d, %d", button, shift, x, y));
    };
  };
  events.MouseDown = tellMouse("MouseDown");
  events.MouseUp = tellMouse("MouseUp");
  events.Change = [this, name] { TellEvent(name, "Change"); };
  events.Click = [this, name] { TellEvent(name, "Click"); };
  events.DblClick = [this, name] { TellEvent(name, "DblClick"); };
}

void TextsPart::Fill() {
  for (wxWindow* child : GetChildren()) {
    const wxString name = child->GetName();
    if (auto* events = dynamic_cast<TextBoxEvents*>(child)) TellEvents(name, *events);
    if (auto* box = dynamic_cast<UseTextBox*>(child)) {
      box->KeyPress = [this, name](int& keyAscii) {
        TellEvent(name, "KeyPress", wxString::Format("%d", keyAscii));
      };
    }
  }
  Find<UseTextBox>("txtHint")->SetLabel("while empty");
  auto* coloured = Find<UseTextBox>("txtFont");
  coloured->SetFontBold(true);
  coloured->SetFontItalic(true);
  coloured->SetForeColor(ControlColour(wxColour(0xA0, 0x20, 0x20)));

  // Nothing is read of a user that is only shown.
  auto user = std::make_shared<Corvane::User>(nullptr);
  user->SetName("Anna Kowalska");
  Find<UserText>("txtUser")->SetUser(user);
  SetUserEditor([this](const std::shared_ptr<Corvane::User>& edited) {
    TellEvent("UserText", "opens the editor of", wxString::FromUTF8(edited->Name()));
  });
}

}  // namespace mindloft
