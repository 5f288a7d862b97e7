#pragma once

#include "bench/editors/Figures.h"

namespace mindloft::bench {

/// Deletes selected users in the main window, from the key to the list without them.
void MeasureDeletion(int runs, Figures& figures);

}  // namespace mindloft::bench
