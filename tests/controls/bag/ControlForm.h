#pragma once

#include <wx/dialog.h>

#include <map>
#include <string>

#include "controls/bag/PropertyBag.h"

namespace mindloft::test {

/// A dialog form with one control, `ctlTried`, loaded as the program loads its forms. Throws what
/// FormResource::Load throws.
class ControlForm {
 public:
  /// `parameters` is the XML inside the control's object.
  ControlForm(const wxString& className, const wxString& parameters);
  /// With the properties of the bag as parameters.
  ControlForm(const wxString& className, const PropertyBag& bag);

  template <typename Control>
  Control& Get() {
    return dynamic_cast<Control&>(*wxWindow::FindWindowByName("ctlTried", &dialog_));
  }
  wxDialog& Dialog() { return dialog_; }
  /// Of the last form that was loaded.
  static wxString Name();

 private:
  wxDialog dialog_;
};

}  // namespace mindloft::test
