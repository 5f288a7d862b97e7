#pragma once

#include <wx/dc.h>

#include <memory>

class wxWindow;

namespace mindloft::platform {

/// Measures texts as the window draws them, for whoever measures thousands in a row: what it needs to know of
/// the screen is asked once. Nothing is drawn with it, and it lives no longer than the window.
std::unique_ptr<wxDC> MakeMeasuringDC(wxWindow& window);
/// Measures texts as the page's context draws them, and sets its font and scale with its own; null where that one
/// measures the parts of texts rightly by itself.
std::unique_ptr<wxDC> MakeMeasuringDC(wxDC& page);

}  // namespace mindloft::platform
