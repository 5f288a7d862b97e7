#include <wx/dcclient.h>

#include <algorithm>
#include <array>

#include "controls/texts/BoxColours.h"
#include "controls/texts/TextLayers.h"
#include "controls/texts/UserText.h"
#include "core/ErrorHandling.h"
#include "platform/ui/ScrollHelpers.h"

namespace mindloft {
namespace {

constexpr const char* kName = "UserText";
/// Of the frame's line, in twips: one pixel of a usual screen.
constexpr int kLine = 15;
/// Of the box from the frame.
constexpr int kSpace = 15;

int Pixels(int twips, const wxWindow& window) {
  return TwipsToPixels(wxRect(0, 0, twips, twips), window).width;
}

}  // namespace

void UserText::SetHasFrame(bool hasFrame) try {
  hasFrame_ = hasFrame;
  InvalidateBestSize();
  UserControl_Resize();
  PropertyChanged();
} catch (...) {
  mindloft::Raise(kName, "HasFrame");
}

void UserText::SetFrame2000(bool frame2000) try {
  frame2000_ = frame2000;
  InvalidateBestSize();
  UserControl_Resize();
  PropertyChanged();
} catch (...) {
  mindloft::Raise(kName, "Frame2000");
}

void UserText::SetFrameColor(ControlColour colour) try {
  frameColor_ = colour;
  Refresh();
  PropertyChanged();
} catch (...) {
  mindloft::Raise(kName, "FrameColor");
}

void UserText::SetBackColor(ControlColour colour) try {
  backColor_ = colour;
  ApplyColours();
  PropertyChanged();
} catch (...) {
  mindloft::Raise(kName, "BackColor");
}

void UserText::SetForeColor(ControlColour colour) try {
  foreColor_ = colour;
  ApplyColours();
} catch (...) {
  mindloft::Raise(kName, "ForeColor");
}

void UserText::SetAlignment(std::int16_t alignment) try {
  constexpr std::array<long, 3> Styles{wxTE_LEFT, wxTE_RIGHT, wxTE_CENTRE};
  if (alignment < 0 || alignment >= static_cast<std::int16_t>(Styles.size()))
    throw Error(ErrorNumber::Overflow, "an alignment is 0, 1 or 2");
  if (alignment != alignment_) MakeBox(Styles[static_cast<std::size_t>(alignment)]);
  alignment_ = alignment;
  ApplyColours();
  UserControl_Resize();
  PropertyChanged();
} catch (...) {
  mindloft::Raise(kName, "Alignment");
}

void UserText::ApplyColours() {
  // The form's own ground, which the desktop may draw in more than one colour.
  const bool isForms = backColor_ == kButtonFaceColour && Locked();
  const wxColour back = isForms ? wxColour() : backColor_.Resolve();
  SetBackgroundColour(back);
  txtUser->SetForegroundColour(IsEnabled() ? TextColourOn(backColor_, foreColor_) : wxColour());
  txtUser->Refresh();
  Refresh();
}

void UserText::DoEnable(bool enable) {
  wxPanel::DoEnable(enable);
  if (txtUser) ApplyColours();
}

int UserText::FrameWidth() const {
  return hasFrame_ || frame2000_ ? Pixels(kLine, *this) : 0;
}

void UserText::UserControl_Resize() try {
  const wxSize size = GetClientSize();
  const int across = FrameWidth() + Pixels(kSpace, *this);
  // A box that is higher than its text shows it at its top: it lies in the middle instead.
  const int height = std::min(txtUser->GetBestSize().y, std::max(0, size.y - 2 * FrameWidth()));
  txtUser->SetSize(across, (size.y - height) / 2, std::max(0, size.x - 2 * across), height);
  Refresh();
} catch (...) {
  ReportOnly(kName, "UserControl_Resize");
}

void UserText::UserControl_Paint() try {
  wxPaintDC dc(this);
  const int width = FrameWidth();
  if (width == 0) return;
  const wxSize size = GetClientSize();
  const wxColour dark = frameColor_.Resolve();
  // Half the way to white.
  const wxColour light = frame2000_ ? platform::BlendColor(dark, *wxWHITE, 50) : dark;
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(light);
  dc.DrawRectangle(size.x - width, 0, width, size.y);
  dc.DrawRectangle(0, size.y - width, size.x, width);
  dc.SetBrush(dark);
  dc.DrawRectangle(0, 0, size.x, width);
  dc.DrawRectangle(0, 0, width, size.y);
} catch (...) {
  ReportOnly(kName, "UserControl_Paint");
}

wxSize UserText::DoGetBestClientSize() const {
  const int around = 2 * (FrameWidth() + Pixels(kSpace, *this));
  return txtUser->GetBestSize() + wxSize(around, around);
}

}  // namespace mindloft
