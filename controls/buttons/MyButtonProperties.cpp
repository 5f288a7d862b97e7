#include <wx/cursor.h>
#include <wx/image.h>

#include "controls/buttons/ButtonCaption.h"
#include "controls/buttons/MyButton.h"

namespace mindloft {
namespace {

constexpr const char* kSoundOver = ".\\resources\\over.wav";
constexpr const char* kSoundClick = ".\\resources\\click.wav";

constexpr std::int16_t kOwnPointer = 99;
constexpr int kPointerSize = 32;  // pixels at 96 dpi

/// The pointers by their number.
constexpr wxStockCursor kPointers[] = {
    wxCURSOR_NONE,     wxCURSOR_ARROW,     wxCURSOR_CROSS,          wxCURSOR_IBEAM,
    wxCURSOR_ARROW,    wxCURSOR_SIZING,    wxCURSOR_SIZENESW,       wxCURSOR_SIZENS,
    wxCURSOR_SIZENWSE, wxCURSOR_SIZEWE,    wxCURSOR_ARROW,          wxCURSOR_WAIT,
    wxCURSOR_NO_ENTRY, wxCURSOR_ARROWWAIT, wxCURSOR_QUESTION_ARROW, wxCURSOR_SIZING};

}  // namespace

const PropertyTable<MyButton>& MyButton::Properties() {
  using C = MyButton;
  static const PropertyTable<C> table{
      KeptProperty("BackColor", &C::BackColor, &C::SetBackColor, kButtonFaceColour),
      KeptProperty("ForeColor", &C::ForeColor, &C::SetForeColor, kButtonTextColour),
      KeptProperty("ShowFocusRect", &C::ShowFocusRect, &C::SetShowFocusRect, true),
      KeptProperty("ShowBorderOnFocus", &C::ShowBorderOnFocus, &C::SetShowBorderOnFocus, true),
      KeptProperty("Caption", &C::Caption, &C::SetCaption, [](const C& button) { return button.GetName(); }),
      KeptProperty("PicturePosition", &C::PicturePosition, &C::SetPicturePosition, PicturePosition::Left),
      KeptProperty("Picture", &C::Picture, &C::SetPicture, ControlPicture()),
      KeptProperty("PictureWidth", &C::PictureWidth, &C::SetPictureWidth, 32),
      KeptProperty("PictureHeight", &C::PictureHeight, &C::SetPictureHeight, 32),
      KeptProperty("PictureSize", &C::PictureSize, &C::SetPictureSize, PictureSize::Stretched),
      KeptProperty("Font", &C::KeptFont, &C::SetKeptFont, wxFont()),
      KeptProperty("PictureHover", &C::PictureHover, &C::SetPictureHover, ControlPicture()),
      KeptProperty("MouseIcon", &C::MouseIcon, &C::SetMouseIcon, ControlPicture()),
      KeptProperty("MousePointer", &C::MousePointer, &C::SetMousePointer, 0),
      KeptProperty("Enabled", &C::Enabled, &C::SetEnabled, true),
      KeptProperty("Raised", &C::RAISED, &C::SetRAISED, 0),
      KeptProperty("BorderEdged", &C::BorderEdged, &C::SetBorderEdged, 0),
      KeptProperty("BorderEdgedColor", &C::BorderEdgedColor, &C::SetBorderEdgedColor, kButtonFaceColour),
      KeptProperty("URL", &C::URL, &C::SetURL, wxString()),
      KeptProperty("XPStyle", &C::XPStyle, &C::SetXPStyle, 0),
      KeptProperty("XPColor_Pressed", &C::XPColor_Pressed, &C::SetXPColor_Pressed, k3DHighlightColour),
      KeptProperty("XPColor_Hover", &C::XPColor_Hover, &C::SetXPColor_Hover, k3DLightColour),
      KeptProperty("XPDefaultColors", &C::XPDefaultColors, &C::SetXPDefaultColors, 1),
      KeptProperty("SoundOver", &C::SoundOver, &C::SetSoundOver, kSoundOver),
      KeptProperty("SoundClick", &C::SoundClick, &C::SetSoundClick, kSoundClick),
      KeptProperty("Locked", &C::Locked, &C::SetLocked, false),
  };
  return table;
}

template <typename Value>
void MyButton::Put(Value& place, const Value& value) {
  place = value;
  PropertyChanged();
  Refresh();
}

template <typename Value>
void MyButton::PutSizing(Value& place, const Value& value) {
  Put(place, value);
  InvalidateBestSize();
}

void MyButton::SetBackColor(ControlColour colour) {
  Put(look_.backColor, colour);
}

void MyButton::SetForeColor(ControlColour colour) {
  Put(look_.foreColor, colour);
}

void MyButton::SetShowFocusRect(bool show) {
  Put(look_.showFocusRect, show);
}

void MyButton::SetShowBorderOnFocus(bool show) {
  Put(look_.showBorderOnFocus, show);
}

void MyButton::SetCaption(const wxString& caption) {
  PutSizing(look_.caption, caption);
  wxControl::SetLabel(caption);
  SetAccessKeys();
  platform::TellButtonName(*this, *this);
}

void MyButton::SetAccessKeys() {
  accessKeys_ = ButtonCaption(look_.caption).accessKeys;
}

void MyButton::SetPicturePosition(std::int16_t position) {
  PutSizing(look_.picturePosition, position);
}

void MyButton::SetPicture(const ControlPicture& picture) {
  PutSizing(look_.picture, picture);
}

void MyButton::SetPictureWidth(std::int16_t width) {
  PutSizing(look_.pictureWidth, width);
}

void MyButton::SetPictureHeight(std::int16_t height) {
  PutSizing(look_.pictureHeight, height);
}

void MyButton::SetPictureSize(std::int16_t size) {
  PutSizing(look_.pictureSize, size);
}

void MyButton::SetPictureHover(const ControlPicture& picture) {
  PutSizing(look_.pictureHover, picture);
}

void MyButton::SetMouseIcon(const ControlPicture& picture) {
  Put(mouseIcon_, picture);
  ShowPointer();
}

void MyButton::SetMousePointer(std::int16_t pointer) {
  Put(mousePointer_, pointer);
  ShowPointer();
}

void MyButton::ShowPointer() {
  if (mousePointer_ == kOwnPointer && mouseIcon_.IsOk())
    SetCursor(wxCursor(mouseIcon_.Stretched(FromDIP(wxSize(kPointerSize, kPointerSize))).ConvertToImage()));
  else if (mousePointer_ > 0 && mousePointer_ < static_cast<std::int16_t>(std::size(kPointers)))
    SetCursor(wxCursor(kPointers[mousePointer_]));
  else
    SetCursor(wxNullCursor);
}

void MyButton::SetEnabled(bool enabled) {
  Enable(enabled);
  PropertyChanged();
}

void MyButton::SetRAISED(std::int16_t raised) {
  Put(look_.raised, raised);
}

void MyButton::SetBorderEdged(std::int16_t edged) {
  Put(look_.borderEdged, edged);
}

void MyButton::SetBorderEdgedColor(ControlColour colour) {
  Put(look_.borderEdgedColor, colour);
}

void MyButton::SetURL(const wxString& url) {
  Put(url_, url);
}

void MyButton::SetXPStyle(std::int16_t style) {
  Put(look_.xpStyle, style);
}

void MyButton::SetXPColor_Pressed(ControlColour colour) {
  Put(look_.xpColorPressed, colour);
}

void MyButton::SetXPColor_Hover(ControlColour colour) {
  Put(look_.xpColorHover, colour);
}

void MyButton::SetXPDefaultColors(std::int16_t useDefaults) {
  Put(look_.xpDefaultColors, useDefaults);
}

void MyButton::SetSoundOver(const wxString& file) {
  Put(soundOver_, file);
}

void MyButton::SetSoundClick(const wxString& file) {
  Put(soundClick_, file);
}

void MyButton::SetLocked(bool locked) {
  Put(locked_, locked);
}

bool MyButton::SetFont(const wxFont& font) {
  if (!wxControl::SetFont(font)) return false;
  InvalidateBestSize();
  PropertyChanged();
  Refresh();
  return true;
}

wxFont MyButton::KeptFont() const {
  return GetFont() == GetParent()->GetFont() ? wxFont() : GetFont();
}

void MyButton::SetKeptFont(const wxFont& font) {
  SetFont(font.IsOk() ? font : GetParent()->GetFont());
}

void MyButton::SetCaptionPosition(std::int16_t position) {
  look_.captionPosition = position;
  Refresh();
}

}  // namespace mindloft
