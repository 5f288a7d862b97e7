#include "tests/controls/bag/ControlForm.h"

#include <wx/sstream.h>
#include <wx/xml/xml.h>

#include <deque>

#include "controls/RegisterControls.h"
#include "controls/bag/BagXml.h"
#include "core/forms/Form.h"
#include "platform/EmbeddedFile.h"

namespace mindloft::test {
namespace {

/// Built-in files are for the life of the process.
std::deque<std::string>& Files() {
  static std::deque<std::string> files;
  return files;
}

wxString ParametersOf(const PropertyBag& bag) {
  auto* control = new wxXmlNode(wxXML_ELEMENT_NODE, "object");
  WriteBag(bag, *control);
  wxXmlDocument document;
  document.SetRoot(control);
  wxStringOutputStream text;
  document.Save(text, wxXML_NO_INDENTATION);
  const wxString object = text.GetString();
  const auto start = object.find("<object");
  const auto open = object.find('>', start);
  return object[open - 1] == '/' ? wxString() : object.substr(open + 1, object.rfind("</object>") - open - 1);
}

}  // namespace

ControlForm::ControlForm(const wxString& className, const wxString& parameters) {
  RegisterControls();
  Files().push_back(("<?xml version='1.0' encoding='UTF-8'?><resource xmlns='http://www.wxwidgets.org/wxxrc' "
                     "version='2.5.3.0'><object class='wxDialog' name='" +
                     wxString::Format("frmTried%zu", Files().size() + 1) +
                     "'><object class='wxBoxSizer'><object class='sizeritem'><object class='" + className +
                     "' name='ctlTried'>" + parameters + "</object></object></object></object></resource>")
                        .utf8_string());
  const platform::EmbeddedFileEntry entry(("forms/" + Name() + ".xrc").utf8_str(),
                                          reinterpret_cast<const unsigned char*>(Files().back().data()),
                                          Files().back().size());
  LoadDialogForm(dialog_, nullptr, Name());
}

ControlForm::ControlForm(const wxString& className, const PropertyBag& bag)
    : ControlForm(className, ParametersOf(bag)) {}

wxString ControlForm::Name() {
  return wxString::Format("frmTried%zu", Files().size());
}

}  // namespace mindloft::test
