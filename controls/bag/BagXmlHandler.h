#pragma once

#include <wx/xrc/xmlres.h>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"
#include "controls/bag/BagXml.h"

namespace mindloft {

/// Makes `<object class="Control" name="...">` of a form's resource a control of that class: created with
/// `Create(parent, id, position, size, style, name)`, its properties read from the parameters of their names.
/// What is wrong with them is reported with the form, the line and the control's name.
template <typename Control>
class BagXmlHandler : public wxXmlResourceHandler {
 public:
  /// `className` is what the resource calls it.
  explicit BagXmlHandler(const char* className) : className_(className) { AddWindowStyles(); }

  bool CanHandle(wxXmlNode* node) override { return IsOfClass(node, className_); }

  wxObject* DoCreateResource() override {
    auto* control = m_instance ? dynamic_cast<Control*>(m_instance) : new Control;
    if (!control) return nullptr;
    control->Create(m_parentAsWindow, GetID(), GetPosition(), GetSize(), GetStyle(), GetName());
    try {
      control->ReadProperties(ReadBag(*m_node));
    } catch (const Error& error) {
      ReportError(GetName() + " (" + className_ + "): " + ToWx(error.Description()));
    }
    SetupWindow(control);
    return control;
  }

 private:
  wxString className_;
};

}  // namespace mindloft
