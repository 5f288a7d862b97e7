#pragma once

#include <wx/dc.h>

#include <memory>

namespace mindloft::platform {

/// Measures texts as the page's context draws them, and sets its font and scale with its own; null where that
/// one measures the parts of texts rightly by itself. It lives no longer than the page. Windows with rich
/// text measure so from MendToolkit on.
std::unique_ptr<wxDC> MakeMeasuringDC(wxDC& page);

}  // namespace mindloft::platform
