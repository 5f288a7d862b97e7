#pragma once

#include <wx/panel.h>

#include <functional>

#include "core/forms/Form.h"

namespace mindloft {

/// One kind of control on the page: a panel whose controls stand in a resource of its name, "TextsPart.xrc".
/// A derived class gives them the states that a resource cannot give, and binds their events.
class GalleryPart : public wxPanel {
 public:
  using Tell = std::function<void(const wxString& event)>;

  /// `tell` shows an event of a control to whoever looks at the page.
  GalleryPart(wxWindow* parent, const wxString& name, Tell tell);

 protected:
  template <typename Control>
  Control* Find(const char* name) const {
    return FindControl<Control>(*this, name);
  }
  /// Shows "txtName: KeyPress 53".
  void TellEvent(const wxString& control, const wxString& event, const wxString& arguments = {}) const;

 private:
  Tell tell_;
};

}  // namespace mindloft
