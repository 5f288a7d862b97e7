#include "controls/richtext/Ruler.h"

#include <wx/dcbuffer.h>
#include <wx/richtext/richtextctrl.h>
#include <wx/settings.h>

#include <cmath>
#include <cstdlib>

#include "backend/tessaline/Services.h"
#include "controls/richtext/EditFormat.h"
#include "controls/richtext/RichEditor.h"
#include "controls/richtext/RulerPicture.h"
#include "core/ErrorHandling.h"
#include "platform/Lengths.h"
#include "platform/SystemLocale.h"
#include "platform/ui/Metrics.h"

namespace mindloft {
namespace {

constexpr int kReach = 5;  ///< pixels at 96 dpi to a mark that is meant
constexpr int kHeight = 24;
constexpr std::uint32_t kInchLocales[] = {1033};  ///< United States
constexpr int kNameText = 62044;

}  // namespace

Ruler::Ruler(wxWindow* parent, const wxString& name)
    : wxWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE | wxFULL_REPAINT_ON_RESIZE,
               name) {
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  SetLayoutDirection(wxLayout_LeftToRight);
  SetLabel(GetResource().GetString(kNameText));
  const auto guarded = [](const char* procedure, auto action) { Guarded("Ruler", procedure, action); };
  Bind(wxEVT_PAINT, [=, this](wxPaintEvent&) { guarded("OnPaint", [this] { OnPaint(); }); });
  Bind(wxEVT_LEFT_DOWN,
       [=, this](wxMouseEvent& event) { guarded("OnLeftDown", [&] { OnLeftDown(event); }); });
  Bind(wxEVT_MOTION, [=, this](wxMouseEvent& event) { guarded("OnMotion", [&] { OnMotion(event); }); });
  Bind(wxEVT_LEFT_UP, [=, this](wxMouseEvent&) { guarded("OnLeftUp", [this] { OnLeftUp(); }); });
  Bind(wxEVT_MOUSE_CAPTURE_LOST,
       [=, this](wxMouseCaptureLostEvent&) { guarded("GiveUp", [this] { GiveUp(); }); });
  // While the mouse is held the focus stays in the editor, so the key goes to the form first.
  wxGetTopLevelParent(this)->Bind(wxEVT_CHAR_HOOK, &Ruler::OnKey, this);
}

Ruler::~Ruler() {
  if (auto* form = wxGetTopLevelParent(this)) form->Unbind(wxEVT_CHAR_HOOK, &Ruler::OnKey, this);
}

void Ruler::OnKey(wxKeyEvent& event) {
  if (event.GetKeyCode() == WXK_ESCAPE && drag_.mark != RulerMark::None)
    Guarded("Ruler", "GiveUp", [this] { GiveUp(); });
  else
    event.Skip();
}

void Ruler::SetLayoutDirection(wxLayoutDirection) {
  wxWindow::SetLayoutDirection(wxLayout_LeftToRight);
}

wxSize Ruler::DoGetBestClientSize() const {
  return FromDIP(wxSize(kHeight, kHeight));
}

double Ruler::PixelsPerTenth() const {
  return editor_->ZoomFactor() * platform::Resolution(this).x / platform::kTenthsPerInch;
}

int Ruler::PixelOf(int tenths) const {
  const auto& margins = editor_->GetMargins();
  const int edge = static_cast<int>(std::lround(margins.x * editor_->ZoomFactor()));
  return edge + static_cast<int>(std::lround(tenths * PixelsPerTenth()));
}

int Ruler::TenthsOf(int pixel) const {
  return static_cast<int>(std::lround((pixel - PixelOf(0)) / PixelsPerTenth()));
}

void Ruler::Update() {
  if (!editor_ || drag_.mark != RulerMark::None) return;
  const wxRichTextAttr format = ParagraphFormat(*editor_);
  const int shown = TenthsOf(editor_->GetClientSize().x - PixelOf(0));
  model_.SetWidth(editor_->PageWidth() > 0 ? std::min(editor_->PageWidth(), shown) : shown);
  const int first = static_cast<int>(format.GetLeftIndent());
  model_.SetIndents(first, first + static_cast<int>(format.GetLeftSubIndent()),
                    static_cast<int>(format.GetRightIndent()));
  const wxArrayInt& tabs = format.GetTabs();
  model_.SetTabs(std::vector<int>(tabs.begin(), tabs.end()));
  Refresh();
}

void Ruler::OnPaint() {
  wxAutoBufferedPaintDC dc(this);
  if (!editor_) return;
  const bool inches = std::find(std::begin(kInchLocales), std::end(kInchLocales),
                                platform::SystemDefaultLocale()) != std::end(kInchLocales);
  DrawRuler(dc, *this, ScaleOf(inches, PixelsPerTenth()), isOff_ ? drag_.tab : -1);
}

Ruler::Hit Ruler::HitTest(const wxPoint& place) const {
  const int reach = FromDIP(kReach);
  const auto isAt = [&](RulerMark mark, int tab) {
    return std::abs(place.x - PixelOf(model_.PlaceOf(mark, tab))) <= reach;
  };
  for (int tab = 0; tab < static_cast<int>(model_.Tabs().size()); ++tab) {
    if (isAt(RulerMark::Tab, tab)) return {RulerMark::Tab, tab};
  }
  // The first line's mark hangs from the top, the others stand at the bottom.
  const bool isAbove = place.y < GetClientSize().y / 2;
  if (isAbove && isAt(RulerMark::FirstLine, 0)) return {RulerMark::FirstLine, 0};
  if (!isAbove && isAt(RulerMark::Left, 0)) return {RulerMark::Left, 0};
  if (isAt(RulerMark::Right, 0)) return {RulerMark::Right, 0};
  return {};
}

void Ruler::OnLeftDown(const wxMouseEvent& event) {
  if (!editor_ || !editor_->IsEditable() || !IsEnabled()) return;
  before_ = model_;
  drag_ = HitTest(event.GetPosition());
  if (drag_.mark == RulerMark::None) {
    const int place = TenthsOf(event.GetX());
    if (place <= 0 || place > model_.Width()) return;
    drag_ = {RulerMark::Tab, model_.AddTab(place)};
  }
  isOff_ = false;
  CaptureMouse();
  Refresh();
}

void Ruler::OnMotion(const wxMouseEvent& event) {
  if (drag_.mark == RulerMark::None) return ShowTip(HitTest(event.GetPosition()));
  const int height = GetClientSize().y;
  isOff_ = drag_.mark == RulerMark::Tab && (event.GetY() < -height || event.GetY() > 2 * height);
  model_.Move(drag_.mark, drag_.tab, TenthsOf(event.GetX()));
  Refresh();
}

void Ruler::ShowTip(const Hit& hit) {
  int text = 0;
  if (hit.mark == RulerMark::FirstLine) text = 62110;
  if (hit.mark == RulerMark::Left) text = 62111;
  if (hit.mark == RulerMark::Right) text = 62112;
  if (hit.mark == RulerMark::Tab) text = 62113;
  if (text == tip_) return;
  tip_ = text;
  if (text)
    SetToolTip(GetResource().GetString(text));
  else
    UnsetToolTip();
}

void Ruler::OnLeftUp() {
  if (drag_.mark == RulerMark::None) return;
  ApplyDrag();
  EndDrag();
}

void Ruler::ApplyDrag() {
  if (isOff_) model_.RemoveTab(drag_.tab);
  wxRichTextAttr format;
  if (drag_.mark == RulerMark::Tab) {
    if (model_.Tabs() == before_.Tabs()) return;
    wxArrayInt tabs;
    for (const int stop : model_.Tabs()) tabs.Add(stop);
    format.SetTabs(tabs);
  } else if (drag_.mark == RulerMark::Right) {
    if (model_.Right() == before_.Right()) return;
    format.SetRightIndent(model_.Right());
  } else {
    if (model_.FirstLine() == before_.FirstLine() && model_.Left() == before_.Left()) return;
    format.SetLeftIndent(model_.FirstLine(), model_.Left() - model_.FirstLine());
  }
  ApplyToParagraphs(*editor_, format);
}

void Ruler::GiveUp() {
  if (drag_.mark == RulerMark::None) return;
  model_ = before_;
  EndDrag();
}

void Ruler::EndDrag() {
  drag_ = {};
  isOff_ = false;
  if (HasCapture()) ReleaseMouse();
  Update();
  editor_->SetFocus();
}

}  // namespace mindloft
