#pragma once

#include <wx/control.h>

#include "controls/bag/BagControl.h"

namespace mindloft {

/// An etched rule between parts of a form: a dark line above a light one, as wide as the control.
class UserLine : public wxControl, public BagControl<UserLine> {
  wxDECLARE_DYNAMIC_CLASS(UserLine);

 public:
  UserLine();  ///< for XRC; Create follows
  explicit UserLine(wxWindow* parent, const wxString& name = "UserLine");
  bool Create(wxWindow* parent, wxWindowID id = wxID_ANY, const wxPoint& position = wxDefaultPosition,
              const wxSize& size = wxDefaultSize, long style = 0, const wxString& name = "UserLine");

  /// None.
  static const PropertyTable<UserLine>& Properties();

  bool AcceptsFocus() const override { return false; }

  /// One of the two lines.
  struct LineShape {
    ControlColour colour;
    wxRect place;  ///< in the control
  };
  const LineShape& Line1() const { return line1_; }
  const LineShape& Line2() const { return line2_; }

 protected:
  wxSize DoGetBestClientSize() const override;

 private:
  void UserControl_Resize();
  void OnPaint(wxPaintEvent& event);
  int Thickness() const;

  LineShape line1_{kButtonShadowColour, {}};
  LineShape line2_{k3DHighlightColour, {}};
};

}  // namespace mindloft
