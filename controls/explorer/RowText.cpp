#include "controls/explorer/RowText.h"

namespace mindloft {

namespace {

/// The native Windows list hands a cell's text through a buffer of 260 characters (of 16 bits).
constexpr std::size_t kLongest = 250;

}  // namespace

wxString RowText(const ExplorerRow& row, wxUniChar breakCharacter, int column) {
  wxString text;
  std::size_t length = 0;
  int field = 0;
  for (const wxUniChar each : row.fields) {
    if (each == breakCharacter) {
      if (++field > column) break;
      continue;
    }
    if (field < column) continue;
    length += each.GetValue() > 0xFFFF ? 2 : 1;
    if (length > kLongest) return text + wxUniChar(0x2026);
    // A line break or tab would be drawn as a box, or over the next row.
    text += each.GetValue() < 0x20 ? wxUniChar(' ') : each;
  }
  return text;
}

}  // namespace mindloft
