#pragma once

namespace mindloft::platform {

/// Mends, for all windows to come, what the toolkit does wrongly on this desktop: where access keys lead (see
/// LeadAccessKeys), and group boxes in windows that run from right to left. Calling it again changes nothing.
void MendToolkit();

}  // namespace mindloft::platform
