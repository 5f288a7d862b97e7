#include "controls/richtext/TextControl.h"

#include "controls/buttons/RaiseEvent.h"
#include "controls/richtext/RichTextProperties.h"

namespace mindloft {

const PropertyTable<TextControl>& TextControl::Properties() {
  static const PropertyTable<TextControl> table(RichTextProperties<TextControl>(), {});
  return table;
}

TextControl::TextControl(wxWindow* parent, const wxString& name) : TextControl() {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

void TextControl::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                         long style, const wxString& name) {
  CreateParts(parent, id, position, size, style, name);
  ReadProperties({});
}

wxString TextControl::SelText() const {
  return Editor().GetStringSelection();
}

void TextControl::SetSelText(const wxString& text) {
  Run("SelText", [&] { Editor().PutSelection(text); });
}

bool TextControl::OnMouseDown(int button, int shift, int x, int y) {
  return RaiseEvent(*this, ClassName(), "MouseDown", MouseDown, button, shift, x, y);
}

}  // namespace mindloft
