#include <gtest/gtest.h>
#include <wx/cmndata.h>

#include "backend/errors/Error.h"
#include "controls/print/PageSettings.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {
namespace {

class PageSettingsTest : public PrivateServices {};

PageSettings Envelope() {
  PageSettings settings;
  settings.printerName = wxString::FromUTF8("\xE6\x89\x93\xE5\x8D\xB0 7");
  settings.papersName = "DL";
  settings.paperWidth = 2200;
  settings.paperHeight = 1100;
  settings.leftMargin = 101;
  settings.rightMargin = 102;
  settings.topMargin = 103;
  settings.bottomMargin = 0;
  settings.orientation = PageOrientation::Landscape;
  return settings;
}

TEST_F(PageSettingsTest, AreKeptForTheUserAndOnlyAPageIsTakenBack) {
  EXPECT_EQ(LoadPageSettings(), PageSettings());
  SavePageSettings(Envelope());
  RestartServices();
  EXPECT_EQ(LoadPageSettings(), Envelope());

  struct Wrong {
    std::int32_t PageSettings::*size;
    std::int32_t value;
  };
  for (const Wrong& each :
       {Wrong{&PageSettings::paperWidth, 0}, Wrong{&PageSettings::paperHeight, -1},
        Wrong{&PageSettings::leftMargin, -5}, Wrong{&PageSettings::rightMargin, 2147483647},
        Wrong{&PageSettings::topMargin, 1100}}) {
    PageSettings settings = Envelope();
    settings.*each.size = each.value;
    SavePageSettings(settings);
    EXPECT_EQ(LoadPageSettings(), PageSettings()) << each.value;
  }
}

TEST_F(PageSettingsTest, TellTheToolkitTheSheetAsItLiesInThePrinter) {
  const wxPrintData envelope = ToPrintData(Envelope());
  EXPECT_EQ(envelope.GetOrientation(), wxLANDSCAPE);
  EXPECT_EQ(envelope.GetPaperId(), wxPAPER_ENV_DL);
  EXPECT_EQ(envelope.GetPaperSize(), wxSize(110, 220));
  EXPECT_EQ(envelope.GetPrinterName(), Envelope().printerName);

  PageSettings settings;
  settings.paperWidth = 2099;  // as a driver rounds it
  EXPECT_EQ(ToPrintData(settings).GetPaperId(), wxPAPER_A4);
  EXPECT_EQ(ToPrintData(settings).GetOrientation(), wxPORTRAIT);
  settings.paperWidth = 1234;
  EXPECT_EQ(ToPrintData(settings).GetPaperId(), wxPAPER_NONE);
  EXPECT_EQ(ToPrintData(settings).GetPaperSize(), wxSize(123, 297));

  const wxPageSetupDialogData margins = ToPageSetupData(Envelope());
  EXPECT_EQ(margins.GetMarginTopLeft(), wxPoint(10, 10));
  EXPECT_EQ(margins.GetMarginBottomRight(), wxPoint(10, 0));
  EXPECT_EQ(PrintedArea(Envelope()), wxRect(101, 103, 1997, 997));
  settings.leftMargin = 5000;
  EXPECT_TRUE(PrintedArea(settings).IsEmpty());
}

TEST_F(PageSettingsTest, AnOrientationIsOneOrTwoAlsoAsAText) {
  EXPECT_EQ(ReadOrientation("2"), PageOrientation::Landscape);
  EXPECT_EQ(ReadOrientation(1), PageOrientation::Portrait);
  for (const char* text : {"0", "3", "-1", "landscape"}) EXPECT_THROW(ReadOrientation(text), Error) << text;
}

}  // namespace
}  // namespace mindloft::test
