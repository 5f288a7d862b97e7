#include <wx/settings.h>

#include "controls/texts/BoxColours.h"
#include "controls/texts/FrameLayer.h"
#include "controls/texts/FramedTextBox.h"
#include "core/ErrorHandling.h"
#include "platform/SystemVersion.h"
#include "platform/ui/VisualStyle.h"

namespace mindloft {
namespace {

/// The class of the visual style that decides on the frame.
constexpr const char* kThemeClass = "ExplorerBar";

}  // namespace

void FramedTextBox::BindLook() {
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    UserControl_Resize();
  });
  Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
    event.Skip();
    Guarded(className_, "UserControl_Resize", [this] {
      ApplyColours();
      UserControl_Resize();
    });
  });
}

void FramedTextBox::UserControl_Resize() try {
  if (platform::HasVisualStyles()) style_ = std::make_unique<platform::VisualStyle>(*this, kThemeClass);
  isThreeD_ = has3D_ || (style_ && style_->IsOpen());
  // In the flat look the control itself is seen around its layers, as a thin line. The boxes keep their
  // colour. NOLINTNEXTLINE(bugprone-parent-virtual-call)
  wxPanel::SetBackgroundColour(isThreeD_ ? wxNullColour
                                         : wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW));
  PlaceLayers();
  RefreshFrame();
} catch (...) {
  ReportOnly(className_, "UserControl_Resize");
}

void FramedTextBox::PlaceLayers() {
  layers_.Place(PixelsToTwips(GetClientSize(), *this), isThreeD_);
  const wxRect background = TwipsToPixels(layers_.background, *this);
  const wxRect picture = TwipsToPixels(layers_.picture, *this);
  const wxRect box = TwipsToPixels(layers_.box, *this);
  txtBackGround->SetSize(background);
  picBackGround->SetSize(wxRect(picture.GetPosition() - background.GetPosition(), picture.GetSize()));
  ForEachBox(
      [&](EditBox& each) { each.SetSize(wxRect(box.GetPosition() - picture.GetPosition(), box.GetSize())); });
}

FrameLook FramedTextBox::Look() const {
  FrameLook look;
  look.isThreeD = isThreeD_;
  look.state.enabled = IsEnabled();
  look.state.focused = ActiveBox().HasFocus();
  look.background = BoxColour();
  look.ground = look.background.IsOk() ? look.background : backColor_.Resolve();
  return look;
}

// The desktop's own colours follow its theme by themselves, also those of a disabled box. Some desktops would
// give a box that is only locked another colour.
wxColour FramedTextBox::BoxColour() const {
  const bool isDesktops = backColor_ == kWindowColour && !(isLocked_ && IsEnabled());
  return isDesktops ? wxColour() : backColor_.Resolve();
}

void FramedTextBox::ApplyColours() {
  const wxColour foreground = IsEnabled() ? TextColourOn(backColor_, foreColor_) : wxColour();
  ForEachBox([&](EditBox& box) {
    box.SetBackgroundColour(BoxColour());
    box.SetForegroundColour(foreground);
    box.Refresh();
  });
  RefreshFrame();
}

void FramedTextBox::RefreshFrame() {
  // The layers lie inside: they are drawn anew with the control.
  Refresh();
}

void FramedTextBox::DoEnable(bool enable) {
  wxPanel::DoEnable(enable);
  if (MyText) ApplyColours();
}

wxSize FramedTextBox::DoGetBestClientSize() const {
  // As large as the desktop's own box, so that both can stand in one line, and never less than the layers
  // need.
  auto* self = const_cast<FramedTextBox*>(this);
  const auto sample = std::make_unique<wxTextCtrl>();
  sample->Hide();
  sample->Create(self, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, boxStyle_);
  sample->SetFont(MyText->GetFont());
  wxSize best = sample->GetBestSize();
  const int margin = TwipsToPixels(wxRect(0, 0, TextLayersMargin(), 0), *this).width;
  best.IncTo(MyText->GetBestSize() + wxSize(margin, margin));
  return best;
}

}  // namespace mindloft
