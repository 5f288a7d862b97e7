#pragma once

#include <wx/string.h>

namespace mindloft {

struct ExplorerColumn {
  wxString caption;
  int width = 150;  ///< in explorer width units: pixels at 96 dpi
  bool operator==(const ExplorerColumn&) const = default;
};

}  // namespace mindloft
