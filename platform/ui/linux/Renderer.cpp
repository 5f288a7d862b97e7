#include "platform/ui/Renderer.h"

#include <wx/dc.h>
#include <wx/renderer.h>
#include <wx/settings.h>
#include <wx/window.h>

namespace mindloft::platform {
namespace {

/// Half the height of the triangle, in pixels at 96 dpi; its other side is as long as that.
constexpr int kHalf = 4;

/// Above and below the text of a heading together, in pixels at 96 dpi.
constexpr int kHeaderPadding = 8;

class ShapeRenderer : public wxDelegateRendererNative {
 public:
  ShapeRenderer() : wxDelegateRendererNative(wxRendererNative::GetDefault()) {}

  int GetHeaderButtonHeight(wxWindow* window) override {
    return window->GetCharHeight() + window->FromDIP(kHeaderPadding);
  }

  void DrawTreeItemButton(wxWindow* window, wxDC& dc, const wxRect& rect, int flags) override {
    const int half = window->FromDIP(kHalf), quarter = half / 2;
    const wxPoint middle(rect.x + rect.width / 2, rect.y + rect.height / 2);
    const wxPoint closed[] = {{-quarter, -half}, {half - quarter, 0}, {-quarter, half}};
    const wxPoint open[] = {{-half, -quarter}, {half, -quarter}, {0, half - quarter}};
    const wxColour colour = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
    const wxDCPenChanger pen(dc, *wxTRANSPARENT_PEN);
    const wxDCBrushChanger brush(dc, wxBrush(colour));
    dc.DrawPolygon(3, flags & wxCONTROL_EXPANDED ? open : closed, middle.x, middle.y);
  }
};

}  // namespace

void DrawTreeButtonsAsShapes() {
  // The first look makes the toolkit's choice, which would undo this one.
  wxRendererNative::Get();
  delete wxRendererNative::Set(new ShapeRenderer);
}

}  // namespace mindloft::platform
