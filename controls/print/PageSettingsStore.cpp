#include <array>

#include "backend/tessaline/Services.h"
#include "controls/print/PageSettings.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr const char* kKey = "Software\\Ordwell\\Mindloft\\Resource\\PageSetup";
constexpr auto kRoot = platform::RegistryRoot::CurrentUser;

struct Size {
  const char* name;
  std::int32_t PageSettings::*member;
};

constexpr std::array kSizes{
    Size{"PaperWidth", &PageSettings::paperWidth}, Size{"PaperHeight", &PageSettings::paperHeight},
    Size{"LeftMargin", &PageSettings::leftMargin}, Size{"RightMargin", &PageSettings::rightMargin},
    Size{"TopMargin", &PageSettings::topMargin},   Size{"BottomMargin", &PageSettings::bottomMargin},
};

/// Longer than any paper, in tenths of a millimetre: the sums of what is below it fit the type.
constexpr std::int32_t kTooLong = 1'000'000;

bool IsPage(const PageSettings& settings) {
  for (const Size& size : kSizes) {
    const std::int32_t value = settings.*size.member;
    if (value < 0 || value >= kTooLong) return false;
  }
  const wxRect area = PrintedArea(settings);
  return !area.IsEmpty();
}

}  // namespace

PageSettings LoadPageSettings() try {
  const Tessaline::Registry& registry = GetRegistry();
  PageSettings settings;
  for (const Size& size : kSizes) settings.*size.member = registry.GetNumber(kRoot, kKey, size.name);
  if (!IsPage(settings)) return {};
  settings.printerName = registry.GetString(kRoot, kKey, "PrinterName");
  settings.papersName = registry.GetString(kRoot, kKey, "PapersName");
  const bool isLandscape =
      registry.GetNumber(kRoot, kKey, "Orientation") == static_cast<std::int32_t>(PageOrientation::Landscape);
  if (isLandscape) settings.orientation = PageOrientation::Landscape;
  return settings;
} catch (...) {
  Raise("PageSettings", "LoadPageSettings");
}

void SavePageSettings(const PageSettings& settings) try {
  Tessaline::Registry& registry = GetRegistry();
  for (const Size& size : kSizes) registry.SetNumber(kRoot, kKey, size.name, settings.*size.member);
  registry.SetString(kRoot, kKey, "PrinterName", settings.printerName);
  registry.SetString(kRoot, kKey, "PapersName", settings.papersName);
  registry.SetNumber(kRoot, kKey, "Orientation", static_cast<std::int32_t>(settings.orientation));
} catch (...) {
  Raise("PageSettings", "SavePageSettings");
}

}  // namespace mindloft
