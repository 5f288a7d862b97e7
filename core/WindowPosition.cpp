#include <wx/display.h>
#include <wx/toplevel.h>

#include <array>
#include <cmath>

#include "backend/tessaline/Services.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"

namespace mindloft {
namespace {

constexpr auto root = platform::RegistryRoot::CurrentUser;
constexpr const char* basePath = "software\\Ordwell\\Mindloft\\Resource\\FormPos";
constexpr int twipsPerInch = 1440;

enum WindowState : std::int32_t { Normal = 0, Minimized = 1, Maximized = 2 };

WindowState StateOf(const wxTopLevelWindow& form) {
  if (form.IsIconized()) return Minimized;
  return form.IsMaximized() || form.IsFullScreen() ? Maximized : Normal;
}

wxString KeyOf(const wxTopLevelWindow& form) {
  return GetStringHelper().JoinStrings({basePath, form.GetName()}, "\\");
}

std::int32_t ToTwips(int pixels, int dotsPerInch) {
  return static_cast<std::int32_t>(std::lround(static_cast<double>(pixels) * twipsPerInch / dotsPerInch));
}

int ToPixels(std::int32_t twips, int dotsPerInch) {
  return static_cast<int>(std::lround(static_cast<double>(twips) * dotsPerInch / twipsPerInch));
}

/// The screen that holds the origin: stored coordinates count from it.
unsigned PrimaryScreen() {
  for (unsigned index = 0; index < wxDisplay::GetCount(); ++index) {
    if (wxDisplay(index).IsPrimary()) return index;
  }
  return 0;
}

void Centre(wxTopLevelWindow& form) {
  wxRect screen = wxDisplay(PrimaryScreen()).GetGeometry();
  wxSize size = form.GetSize();
  form.Move((screen.width - size.x) / 2, (screen.height - size.y) / 2);
}

void SetNormal(wxTopLevelWindow& form) {
  if (form.IsIconized()) form.Iconize(false);
  if (form.IsMaximized()) form.Maximize(false);
}

/// Puts the form at its stored rectangle; false, and no change, when any part of it is negative or missing.
bool RestoreRectangle(wxTopLevelWindow& form, const wxString& key) {
  std::array<std::int32_t, 4> stored{};
  std::size_t index = 0;
  for (const char* name : {"Top", "Left", "Width", "Height"}) {
    stored[index++] = GetRegistry().GetNumber(root, key, name);
  }
  for (auto value : stored) {
    if (value < 0) return false;
  }
  auto [top, left, width, height] = stored;
  wxSize dpi = form.GetDPI();
  form.SetSize(ToPixels(left, dpi.x), ToPixels(top, dpi.y), ToPixels(width, dpi.x), ToPixels(height, dpi.y));
  return true;
}

}  // namespace

void SetFormPos(wxTopLevelWindow& form) try {
  const wxString key = KeyOf(form);
  const auto state = StateOf(form);
  auto& registry = GetRegistry();
  if (state == Normal) {
    wxRect rectangle = form.GetRect();
    wxSize dpi = form.GetDPI();
    registry.SetNumber(root, key, "Top", ToTwips(rectangle.y, dpi.y));
    registry.SetNumber(root, key, "Left", ToTwips(rectangle.x, dpi.x));
    registry.SetNumber(root, key, "Width", ToTwips(rectangle.width, dpi.x));
    registry.SetNumber(root, key, "Height", ToTwips(rectangle.height, dpi.y));
  }
  registry.SetNumber(root, key, "State", state);
} catch (...) {
  ReportOnly("modShare", "SetFormPos");
}

void LoadFormPos(wxTopLevelWindow& form, bool fullScreen) try {
  const wxString key = KeyOf(form);
  const auto state = GetRegistry().GetNumber(root, key, "State");
  if (state == Maximized) {
    if (fullScreen) FullScreen(form);
    form.Maximize();
    return;
  }
  SetNormal(form);
  if (state >= 0) {
    if (!RestoreRectangle(form, key)) Centre(form);
  } else if (fullScreen) {
    FullScreen(form);
  } else {
    Centre(form);
  }
} catch (...) {
  ReportOnly("modShare", "LoadFormPos");
}

void FullScreen(wxTopLevelWindow& form) try {
  // The working area: what a maximized window's client area and its caption take together.
  wxSize area = wxDisplay(PrimaryScreen()).GetClientArea().GetSize();
  form.Move(0, 0);
  form.SetSize(area);
} catch (...) {
  ReportOnly("modShare", "FullScreen");
}

}  // namespace mindloft
