#include <wx/toplevel.h>

#include <array>

#include "backend/tessaline/Services.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"
#include "platform/ui/Metrics.h"

namespace mindloft {
namespace {

constexpr auto root = platform::RegistryRoot::CurrentUser;
constexpr const char* basePath = "software\\Ordwell\\Mindloft\\Resource\\FormPos";

/// Pixels; the greatest that window systems can count.
constexpr int greatestSize = 32767;

enum WindowState : std::int32_t { Normal = 0, Minimized = 1, Maximized = 2 };

WindowState StateOf(const wxTopLevelWindow& form) {
  if (form.IsIconized()) return Minimized;
  return form.IsMaximized() || form.IsFullScreen() ? Maximized : Normal;
}

wxString KeyOf(const wxTopLevelWindow& form) {
  return GetStringHelper().JoinStrings({basePath, form.GetName()}, "\\");
}

void Centre(wxTopLevelWindow& form) {
  wxSize space = platform::GetScreenMetrics().screen - form.GetSize();
  form.Move(space.x / 2, space.y / 2);
}

void SetNormal(wxTopLevelWindow& form) {
  if (form.IsIconized()) form.Iconize(false);
  if (form.IsMaximized()) form.Maximize(false);
}

/// Puts the form at a rectangle in twips.
void Place(wxTopLevelWindow& form, int left, int top, int width, int height) {
  using platform::TwipsToPixelsX, platform::TwipsToPixelsY;
  // Without a greatest size of its own a window would be cut to the size of the present screens.
  form.SetMaxSize(wxSize(greatestSize, greatestSize));
  form.SetSize(TwipsToPixelsX(left, &form), TwipsToPixelsY(top, &form), TwipsToPixelsX(width, &form),
               TwipsToPixelsY(height, &form));
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
  Place(form, left, top, width, height);
  return true;
}

}  // namespace

void SetFormPos(wxTopLevelWindow& form) try {
  const wxString key = KeyOf(form);
  const auto state = StateOf(form);
  auto& registry = GetRegistry();
  if (state == Normal) {
    wxRect rectangle = form.GetRect();
    registry.SetNumber(root, key, "Top", platform::PixelsToTwipsY(rectangle.y, &form));
    registry.SetNumber(root, key, "Left", platform::PixelsToTwipsX(rectangle.x, &form));
    registry.SetNumber(root, key, "Width", platform::PixelsToTwipsX(rectangle.width, &form));
    registry.SetNumber(root, key, "Height", platform::PixelsToTwipsY(rectangle.height, &form));
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
  // The client height of a window over the whole working area excludes its caption.
  const auto screen = platform::GetScreenMetrics();
  Place(form, 0, 0, platform::PixelsToTwipsX(screen.fullScreenWidth, &form),
        platform::PixelsToTwipsY(screen.captionHeight + screen.fullScreenHeight, &form));
} catch (...) {
  ReportOnly("modShare", "FullScreen");
}

}  // namespace mindloft
