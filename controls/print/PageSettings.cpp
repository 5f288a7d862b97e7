#include "controls/print/PageSettings.h"

#include <wx/cmndata.h>
#include <wx/paper.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

#include "backend/errors/Error.h"
#include "backend/tessaline/Services.h"
#include "platform/Lengths.h"

namespace mindloft {
namespace {

int Millimetres(std::int32_t tenths) {
  return static_cast<int>(std::lround(platform::MillimetresOf(tenths)));
}

/// The toolkit's name for a sheet of that size; none when it knows no such paper. Drivers round differently.
wxPaperSize PaperOf(const wxSize& sheet) {
  constexpr int Rounding = 5;
  if (!wxThePrintPaperDatabase) return wxPAPER_NONE;
  for (std::size_t index = 0; index < wxThePrintPaperDatabase->GetCount(); ++index) {
    const wxPrintPaperType* paper = wxThePrintPaperDatabase->Item(index);
    const wxSize difference = paper->GetSize() - sheet;
    if (std::abs(difference.x) <= Rounding && std::abs(difference.y) <= Rounding) return paper->GetId();
  }
  return wxPAPER_NONE;
}

}  // namespace

PageOrientation ReadOrientation(std::int32_t number) {
  const auto orientation = static_cast<PageOrientation>(number);
  if (orientation != PageOrientation::Portrait && orientation != PageOrientation::Landscape)
    throw Error(ErrorNumber::TypeMismatch, std::to_string(number) + " is no orientation of a page");
  return orientation;
}

PageOrientation ReadOrientation(const wxString& text) {
  return ReadOrientation(GetConvert().ToLong(text));
}

wxSize SheetSize(const PageSettings& settings) {
  if (settings.orientation == PageOrientation::Landscape) return {settings.paperHeight, settings.paperWidth};
  return {settings.paperWidth, settings.paperHeight};
}

wxRect PrintedArea(const PageSettings& settings) {
  const int width = settings.paperWidth - settings.leftMargin - settings.rightMargin;
  const int height = settings.paperHeight - settings.topMargin - settings.bottomMargin;
  return {settings.leftMargin, settings.topMargin, std::max(width, 0), std::max(height, 0)};
}

wxPrintData ToPrintData(const PageSettings& settings) {
  wxPrintData data;
  data.SetPrinterName(settings.printerName);
  data.SetOrientation(settings.orientation == PageOrientation::Landscape ? wxLANDSCAPE : wxPORTRAIT);
  const wxSize sheet = SheetSize(settings);
  data.SetPaperId(PaperOf(sheet));
  data.SetPaperSize({Millimetres(sheet.x), Millimetres(sheet.y)});
  return data;
}

wxPageSetupDialogData ToPageSetupData(const PageSettings& settings) {
  wxPageSetupDialogData data(ToPrintData(settings));
  data.SetMarginTopLeft({Millimetres(settings.leftMargin), Millimetres(settings.topMargin)});
  data.SetMarginBottomRight({Millimetres(settings.rightMargin), Millimetres(settings.bottomMargin)});
  return data;
}

}  // namespace mindloft
