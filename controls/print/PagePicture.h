#pragma once

#include <wx/control.h>

#include "controls/bag/BagControl.h"
#include "controls/print/PageSettings.h"

namespace mindloft {

/// A small picture of a page with its margins, in the desktop's colours; never mirrored, as paper is not.
class PagePicture : public wxControl, public BagControl<PagePicture> {
 public:
  PagePicture() = default;  ///< for XRC; Create follows
  explicit PagePicture(wxWindow* parent, const wxString& name = "picPage");
  bool Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style,
              const wxString& name);

  /// None.
  static const PropertyTable<PagePicture>& Properties();

  /// Shows the page of these settings. What is no page (a side of 0) shows nothing.
  void ShowPage(const PageSettings& settings);

  bool AcceptsFocus() const override { return false; }

  /// Where things are drawn, in pixels of the window.
  struct Places {
    wxRect page;
    wxRect printed;  ///< empty when the margins leave nothing
  };
  const Places& Drawn() const { return places_; }

 protected:
  wxSize DoGetBestClientSize() const override;

 private:
  void PlaceParts();
  void OnPaint(wxPaintEvent& event);
  void DrawPage(wxDC& dc) const;
  void DrawText(wxDC& dc) const;

  PageSettings settings_;
  Places places_;
};

}  // namespace mindloft
