#pragma once

class wxWindow;

namespace mindloft {

// The rich-text component measures in tenths of a millimetre; so do page settings. A pixel here is one before
// zooming.

int TenthsToPixels(int tenths, const wxWindow& window);
int PixelsToTenths(int pixels, const wxWindow& window);

}  // namespace mindloft
