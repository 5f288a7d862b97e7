#pragma once

#include "platform/Printers.h"
#include "platform/linux/CupsLibrary.h"

namespace mindloft::platform {

/// The papers that the print server knows for a destination.
PrinterPapers ReadCupsPapers(const CupsLibrary& cups, http_t* server, cups_dest_t* destination,
                             cups_dinfo_t* info);

}  // namespace mindloft::platform
