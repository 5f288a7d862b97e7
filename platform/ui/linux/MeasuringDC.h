#pragma once

namespace mindloft::platform {

/// From now on all rich-text boxes measure texts as the contexts of MakeMeasuringDC do.
void MeasureRichText();

}  // namespace mindloft::platform
