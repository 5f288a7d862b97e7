#pragma once

#include <wx/bitmap.h>
#include <wx/colour.h>

namespace mindloft {

/// The bitmap's shape in one colour, for the light under an embossed picture.
wxBitmap Silhouette(const wxBitmap& bitmap, const wxColour& colour);

/// The bitmap without its colours and paler, so that it is read as disabled on that face.
wxBitmap Greyed(const wxBitmap& bitmap, const wxColour& face);

}  // namespace mindloft
