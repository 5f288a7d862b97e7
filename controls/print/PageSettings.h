#pragma once

#include <wx/gdicmn.h>
#include <wx/string.h>

#include <cstdint>

class wxPageSetupDialogData;
class wxPrintData;

namespace mindloft {

enum class PageOrientation : std::int32_t { Portrait = 1, Landscape = 2 };

/// The orientation of that number, or text; TypeMismatch when there is none.
PageOrientation ReadOrientation(std::int32_t number);
PageOrientation ReadOrientation(const wxString& text);

/// On what, and where on it, something is printed: what frmPageSetup asks for. Sizes are tenths of a
/// millimetre.
struct PageSettings {
  wxString printerName;  ///< as the system names it; empty: the user's default printer
  wxString papersName;   ///< as the printer's driver names it; empty: none of its papers has this size
  /// Of the page as it is read: of a sheet of 210 x 297 mm in landscape the width is 2970.
  std::int32_t paperWidth = 2100;
  std::int32_t paperHeight = 2970;
  std::int32_t leftMargin = 200;
  std::int32_t rightMargin = 200;
  std::int32_t topMargin = 200;
  std::int32_t bottomMargin = 200;
  PageOrientation orientation = PageOrientation::Portrait;

  bool operator==(const PageSettings&) const = default;
};

/// The sheet as it lies in the printer: in landscape the page's sides exchanged.
wxSize SheetSize(const PageSettings& settings);

/// What is left of the page between its margins, at least nothing; from the page's upper left corner.
wxRect PrintedArea(const PageSettings& settings);

/// Printer, sheet and orientation for the toolkit's printing. The margins are not in it: they go to whatever
/// lays out the pages (wxRichTextPrinting takes tenths of a millimetre as they are).
wxPrintData ToPrintData(const PageSettings& settings);

/// The same with the margins, which the toolkit keeps in whole millimetres here.
wxPageSetupDialogData ToPageSetupData(const PageSettings& settings);

/// What the user chose last, else the defaults above. Kept in the user's part of this computer's registry,
/// not in the user's configuration document: another computer has other printers. What somebody has put there
/// that is no page counts as not there.
PageSettings LoadPageSettings();
void SavePageSettings(const PageSettings& settings);

}  // namespace mindloft
