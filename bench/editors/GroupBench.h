#pragma once

#include <wx/app.h>

#include "bench/editors/Figures.h"

namespace mindloft::bench {

/// The sheet of a group of 100,000 members, which it makes in the directory: how long it takes to open, and
/// to take out or add one member and store that.
void MeasureGroup(wxApp& app, int runs, Figures& figures);

}  // namespace mindloft::bench
