#include "controls/buttons/ButtonRects.h"

#include <algorithm>

#include "controls/buttons/ButtonLook.h"

namespace mindloft {
namespace {

bool IsThere(const wxSize& size) {
  return size.x > 0 && size.y > 0;
}

/// Where picture and caption together begin.
wxPoint PlaceTogether(const wxRect& inside, const wxSize& both, std::int16_t position) {
  wxPoint place(inside.x + (inside.width - both.x) / 2, inside.y + (inside.height - both.y) / 2);
  if (position == CaptionPosition::Left) place.x = inside.x;
  if (position == CaptionPosition::Right) place.x = inside.x + inside.width - both.x;
  if (position == CaptionPosition::Top) place.y = inside.y;
  if (position == CaptionPosition::Bottom) place.y = inside.y + inside.height - both.y;
  // What has no room is cut off at its end, not at its beginning.
  return {std::max(place.x, inside.x), std::max(place.y, inside.y)};
}

wxRect Mirror(wxRect rect, const wxRect& inside) {
  rect.x = inside.x + inside.width - (rect.x - inside.x) - rect.width;
  return rect;
}

}  // namespace

bool ButtonContent::IsBeside() const {
  return picturePosition != PicturePosition::Top && picturePosition != PicturePosition::Bottom;
}

int ButtonContent::Gap() const {
  return IsThere(picture) && IsThere(caption) ? gap : 0;
}

wxSize ButtonContent::Size() const {
  if (IsBeside()) return {picture.x + Gap() + caption.x, std::max(picture.y, caption.y)};
  return {std::max(picture.x, caption.x), picture.y + Gap() + caption.y};
}

ButtonRects CalcRECTs(const wxRect& inside, const ButtonContent& content, bool mirrored) {
  ButtonContent shown = content;
  const int taken = content.IsBeside() ? content.picture.x + content.Gap() : 0;
  shown.caption.x = std::clamp(inside.width - taken, 0, content.caption.x);
  const wxSize both = shown.Size();
  const wxPoint place = PlaceTogether(inside, both, content.captionPosition);
  ButtonRects rects{{place, shown.picture}, {place, shown.caption}};
  if (shown.IsBeside()) {
    rects.picture.y += (both.y - shown.picture.y) / 2;
    rects.caption.y += (both.y - shown.caption.y) / 2;
    if (shown.picturePosition == PicturePosition::Right)
      rects.picture.x += shown.caption.x + shown.Gap();
    else
      rects.caption.x += shown.picture.x + shown.Gap();
  } else {
    rects.picture.x += (both.x - shown.picture.x) / 2;
    rects.caption.x += (both.x - shown.caption.x) / 2;
    if (shown.picturePosition == PicturePosition::Bottom)
      rects.picture.y += shown.caption.y + shown.Gap();
    else
      rects.caption.y += shown.picture.y + shown.Gap();
  }
  if (mirrored) rects = {Mirror(rects.picture, inside), Mirror(rects.caption, inside)};
  return rects;
}

}  // namespace mindloft
