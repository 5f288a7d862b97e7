#include "controls/buttons/Emboss.h"

#include <wx/image.h>

namespace mindloft {
namespace {

/// The image with an alpha channel, whatever it had instead.
wxImage WithAlpha(const wxBitmap& bitmap) {
  wxImage image = bitmap.ConvertToImage();
  if (!image.HasAlpha()) image.InitAlpha();
  return image;
}

wxBitmap ToBitmap(const wxImage& image, const wxBitmap& like) {
  return wxBitmap(image, wxBITMAP_SCREEN_DEPTH, like.GetScaleFactor());
}

}  // namespace

wxBitmap Silhouette(const wxBitmap& bitmap, const wxColour& colour) {
  wxImage image = WithAlpha(bitmap);
  image.SetRGB(wxRect(image.GetSize()), colour.Red(), colour.Green(), colour.Blue());
  return ToBitmap(image, bitmap);
}

wxBitmap Greyed(const wxBitmap& bitmap, const wxColour& face) {
  const auto brightness = static_cast<unsigned char>(wxRound(face.GetLuminance() * 255));
  return ToBitmap(WithAlpha(bitmap).ConvertToDisabled(brightness), bitmap);
}

}  // namespace mindloft
