#pragma once

namespace mindloft::platform {

/// From now on rich-text boxes measure the parts of texts in the order in which they are read, and ask the
/// display server once for each layout where they are.
void MeasureRichText();

}  // namespace mindloft::platform
