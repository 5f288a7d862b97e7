#pragma once

namespace mindloft::platform {

/// Mends, for all windows to come, what the toolkit does wrongly or twice on this desktop: where access keys
/// lead (see LeadAccessKeys), group boxes in windows that run from right to left, what rich-text boxes lay
/// out their lines by, and how often fonts and glyphs are read. Calling it again changes nothing.
void MendToolkit();

}  // namespace mindloft::platform
