#include "platform/ui/Renderer.h"

#include <gtk/gtk.h>
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

/// The width of a border that can be moved, in pixels at 96 dpi.
constexpr int kSash = 4;

class ShapeRenderer : public wxDelegateRendererNative {
 public:
  ShapeRenderer() : wxDelegateRendererNative(wxRendererNative::GetDefault()) {}

  int GetHeaderButtonHeight(wxWindow* window) override {
    return window->GetCharHeight() + window->FromDIP(kHeaderPadding);
  }

  int DrawHeaderButton(wxWindow* window, wxDC& dc, const wxRect& rect, int flags,
                       wxHeaderSortIconType sortArrow, wxHeaderButtonParams* params) override {
    Fill(dc, rect, wxSYS_COLOUR_LISTBOX);
    const wxDCPenChanger edge(dc, wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW));
    dc.DrawLine(rect.GetBottomLeft(), rect.GetBottomRight() + wxSize(1, 0));
    dc.DrawLine(rect.GetTopRight(), rect.GetBottomRight());
    return DrawHeaderButtonContents(window, dc, rect, flags, sortArrow, params);
  }

  wxSplitterRenderParams GetSplitterParams(const wxWindow* window) override {
    return {window->FromDIP(kSash), 0, false};
  }

  void DrawSplitterSash(wxWindow* window, wxDC& dc, const wxSize& size, wxCoord position,
                        wxOrientation orientation, int /*flags*/) override {
    // Before the window is on the screen, its client area's context would draw on the screen itself.
    if (!gtk_widget_get_mapped(static_cast<GtkWidget*>(window->GetHandle()))) return;
    const int width = window->FromDIP(kSash);
    const wxRect sash =
        orientation == wxVERTICAL ? wxRect(position, 0, width, size.y) : wxRect(0, position, size.x, width);
    Fill(dc, sash, wxSYS_COLOUR_BTNSHADOW);
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

 private:
  static void Fill(wxDC& dc, const wxRect& rect, wxSystemColour colour) {
    const wxDCPenChanger pen(dc, *wxTRANSPARENT_PEN);
    const wxDCBrushChanger brush(dc, wxSystemSettings::GetColour(colour));
    dc.DrawRectangle(rect);
  }
};

}  // namespace

void DrawPartsAsShapes() {
  // The first look makes the toolkit's choice, which would undo this one.
  wxRendererNative::Get();
  delete wxRendererNative::Set(new ShapeRenderer);
}

}  // namespace mindloft::platform
