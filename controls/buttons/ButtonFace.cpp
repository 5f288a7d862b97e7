#include "controls/buttons/ButtonFace.h"

#include <wx/arrstr.h>
#include <wx/button.h>
#include <wx/control.h>
#include <wx/dcclient.h>
#include <wx/renderer.h>
#include <wx/tokenzr.h>

#include <algorithm>

#include "controls/buttons/ButtonEdges.h"
#include "controls/buttons/CharacterPlace.h"
#include "controls/buttons/Emboss.h"

namespace mindloft {
namespace {

// In pixels at 96 dpi.
constexpr int kLine = 1;     ///< of every edge
constexpr int kFocus = 4;    ///< from the rim to the focus rectangle: border, edge border and two edges
constexpr int kMarginX = 8;  ///< from the rim to what stands on the face
constexpr int kMarginY = 6;
constexpr int kGap = 6;     ///< between picture and caption
constexpr int kCorner = 3;  ///< radius of the flat style's corners
constexpr int kShift = 1;   ///< how far the content moves while pressed

wxArrayString Lines(const wxString& text) {
  return wxStringTokenize(text, "\n", wxTOKEN_RET_EMPTY_ALL);
}

}  // namespace

ButtonFace::ButtonFace(wxWindow& window, const ButtonLook& look, const ButtonState& state)
    : window_(window), look_(look), state_(state), caption_(look.caption), colours_(look, state) {}

int ButtonFace::Pixels(int dips) const {
  return std::max(window_.FromDIP(dips), std::min(dips, 1));
}

wxSize ButtonFace::PictureExtent() const {
  const ControlPicture& picture = look_.picture.IsOk() ? look_.picture : look_.pictureHover;
  if (!picture.IsOk()) return {0, 0};
  const wxSize box(std::max<int>(look_.pictureWidth, 0), std::max<int>(look_.pictureHeight, 0));
  wxSize size = box;
  if (look_.pictureSize == PictureSize::Own) {
    size = picture.OwnSize();
  } else if (look_.pictureSize == PictureSize::Fitted) {
    const wxSize own = picture.OwnSize();
    const double scale = std::min(static_cast<double>(box.x) / own.x, static_cast<double>(box.y) / own.y);
    size = {wxRound(own.x * scale), wxRound(own.y * scale)};
  }
  return window_.FromDIP(size);
}

wxSize ButtonFace::TextExtent(const wxString& line) const {
  return window_.GetTextExtent(line);
}

wxSize ButtonFace::CaptionExtent() const {
  wxSize size(0, 0);
  if (caption_.text.empty()) return size;
  for (const wxString& line : Lines(caption_.text)) {
    const wxSize extent = TextExtent(line.empty() ? " " : line);
    size = {std::max(size.x, extent.x), size.y + extent.y};
  }
  return size;
}

ButtonContent ButtonFace::Content() const {
  return {PictureExtent(), CaptionExtent(), Pixels(kGap), look_.picturePosition, look_.captionPosition};
}

wxSize ButtonFace::BestSize() const {
  wxSize size = Content().Size() + wxSize(2 * Pixels(kMarginX), 2 * Pixels(kMarginY));
  // With a caption it lines up with the desktop's own buttons.
  if (!caption_.text.empty()) size.IncTo(wxButton::GetDefaultSize(&window_));
  return size;
}

void ButtonFace::Draw(wxDC& dc, const wxSize& size) const {
  const wxRect whole(size);
  dc.SetBackground(wxBrush(colours_.face));
  dc.Clear();
  const wxRect inner = DrawBorders(dc, whole);
  if (look_.xpStyle != 0)
    DrawFlatShape(dc, inner);
  else
    Draw3DEffect(dc, inner);

  wxRect content = whole;
  content.Deflate(Pixels(kMarginX), Pixels(kMarginY));
  ButtonRects rects = CalcRECTs(content, Content(), state_.mirrored);
  if (state_.pressed) {
    rects.picture.Offset(Pixels(kShift), Pixels(kShift));
    rects.caption.Offset(Pixels(kShift), Pixels(kShift));
  }
  wxRect clip = whole;
  clip.Deflate(Pixels(kFocus) - Pixels(kLine));
  if (clip.IsEmpty()) return;
  {
    const wxDCClipper clipper(dc, clip);
    DrawPicture(dc, rects.picture);
    DrawCaption(dc, rects.caption);
  }
  wxRect focus = whole;
  focus.Deflate(Pixels(kFocus));
  if (state_.focused && look_.showFocusRect && !focus.IsEmpty())
    wxRendererNative::Get().DrawFocusRect(&window_, dc, focus);
}

wxRect ButtonFace::DrawBorders(wxDC& dc, wxRect rect) const {
  const int line = Pixels(kLine);
  if ((state_.focused && look_.showBorderOnFocus) || state_.isDefault)
    DrawFrame(dc, rect, line, colours_.border, colours_.border);
  rect.Deflate(line);
  if (look_.borderEdged == 0) return rect;
  const wxColour edge = look_.borderEdgedColor.Resolve();
  DrawFrame(dc, rect, line, edge, edge);
  return rect.Deflate(line);
}

void ButtonFace::Draw3DEffect(wxDC& dc, wxRect rect) const {
  const bool raised = look_.raised != 0 || (state_.hovering && state_.enabled);
  if (!raised && !state_.pressed) return;
  const int line = Pixels(kLine);
  wxColour light[] = {k3DHighlightColour.Resolve(), k3DLightColour.Resolve()};
  wxColour dark[] = {DarkShadow(), kButtonShadowColour.Resolve()};
  if (state_.pressed) std::swap(light, dark);
  for (int edge = 0; edge < 2; ++edge) {
    DrawFrame(dc, rect, line, light[edge], dark[edge]);
    rect.Deflate(line);
  }
}

void ButtonFace::DrawFlatShape(wxDC& dc, const wxRect& rect) const {
  if (!colours_.isFilled && look_.raised == 0) return;
  DrawRoundedShape(dc, rect, Pixels(kLine), Pixels(kCorner), colours_.outline, colours_.filling);
}

void ButtonFace::DrawPicture(wxDC& dc, const wxRect& rect) const {
  const bool hover = state_.hovering && state_.enabled && look_.pictureHover.IsOk();
  const ControlPicture& picture = hover ? look_.pictureHover : look_.picture;
  if (!picture.IsOk() || rect.IsEmpty()) return;
  const double scale = window_.ToPhys(wxSize(100, 100)).x / 100.0;
  wxBitmap bitmap = picture.Stretched({wxRound(rect.width * scale), wxRound(rect.height * scale)});
  bitmap.SetScaleFactor(scale);
  if (state_.enabled) {
    dc.DrawBitmap(bitmap, rect.GetPosition(), true);
    return;
  }
  if (colours_.relief.IsOk()) {
    const wxPoint offset(Pixels(kLine), Pixels(kLine));
    dc.DrawBitmap(Silhouette(bitmap, colours_.relief), rect.GetPosition() + offset, true);
  }
  dc.DrawBitmap(Greyed(bitmap, colours_.face), rect.GetPosition(), true);
}

void ButtonFace::DrawCaption(wxDC& dc, const wxRect& rect) const {
  if (caption_.text.empty() || rect.IsEmpty()) return;
  dc.SetFont(window_.GetFont());
  dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  wxRect place = rect;
  int underlined = caption_.underlined;
  for (const wxString& line : Lines(caption_.text)) {
    place.height = TextExtent(line.empty() ? " " : line).y;
    const int length = static_cast<int>(line.length());
    DrawLine(dc, place, line, underlined < length ? underlined : -1);
    underlined = underlined > length ? underlined - length - 1 : -1;
    place.y += place.height;
  }
}

void ButtonFace::DrawLine(wxDC& dc, const wxRect& rect, const wxString& line, int underlined) const {
  // The DC measures more finely than the window: what fits by the window's measure is never cut.
  const bool fits = TextExtent(line).x <= rect.width;
  const wxString shown =
      fits ? line : wxControl::Ellipsize(line, dc, wxELLIPSIZE_END, rect.width, wxELLIPSIZE_FLAGS_NONE);
  const wxPoint at(rect.x + (rect.width - TextExtent(shown).x) / 2, rect.y);
  wxRect underline;
  if (underlined >= 0 && (fits || underlined + 1 < static_cast<int>(shown.length()))) {
    const auto [left, width] = PlaceOfCharacter(shown, static_cast<std::size_t>(underlined), state_.mirrored,
                                                [this](const wxString& text) { return TextExtent(text).x; });
    const int descent = dc.GetFontMetrics().descent;
    underline = {at.x + left, at.y + rect.height - descent + Pixels(kLine), width, Pixels(kLine)};
  }
  // Marks of direction keep the dots at a text's end on its left.
  const wxUniChar mark(0x200F);
  const wxString directed = state_.mirrored ? wxString(mark) + shown + mark : shown;
  if (colours_.relief.IsOk()) {
    const wxPoint offset(Pixels(kLine), Pixels(kLine));
    wxRect below = underline;
    below.Offset(offset);
    dc.SetTextForeground(colours_.relief);
    DrawTextAt(dc, at + offset, directed, below);
  }
  dc.SetTextForeground(colours_.text);
  DrawTextAt(dc, at, directed, underline);
}

void ButtonFace::DrawTextAt(wxDC& dc, const wxPoint& at, const wxString& line,
                            const wxRect& underline) const {
  dc.DrawText(line, at);
  if (!underline.IsEmpty()) FillRect(dc, underline, dc.GetTextForeground());
}

}  // namespace mindloft
