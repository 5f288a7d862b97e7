#pragma once

#include <cups/cups.h>

#include "platform/Printers.h"

namespace mindloft::platform {

/// The papers that the print server knows for a destination.
PrinterPapers ReadCupsPapers(http_t* server, cups_dest_t* destination, cups_dinfo_t* info);

}  // namespace mindloft::platform
