#pragma once

namespace mindloft::texts {

// Numbers of the texts that the page setup shows.
inline constexpr int kAskingForPrinters = 61900;
inline constexpr int kNoPrinter = 61901;
inline constexpr int kPrinterGone = 61902;  ///< %1 its name
inline constexpr int kNoPapers = 61903;
inline constexpr int kAskingForPapers = 61904;
inline constexpr int kNoSuchPaper = 61905;
inline constexpr int kMarginsTooLarge = 61906;
inline constexpr int kPrintedArea = 61907;  ///< %1 and %2 its sides
inline constexpr int kSizeChanged = 61908;

}  // namespace mindloft::texts
