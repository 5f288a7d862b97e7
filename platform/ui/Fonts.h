#pragma once

namespace mindloft::platform {

/// Begins to read what fonts there are, beside the caller, where the toolkit would do that when it first
/// measures a text. Before the toolkit starts.
void BeginLoadingFonts();

}  // namespace mindloft::platform
