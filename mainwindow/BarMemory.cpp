#include "mainwindow/BarMemory.h"

#include "backend/tessaline/Services.h"
#include "mainwindow/FormKey.h"
#include "mainwindow/MainStatusBar.h"
#include "mainwindow/MainToolBar.h"

namespace mindloft {

namespace {

constexpr const char* kToolBar = "ToolBar";
constexpr const char* kStatusBar = "StatusBar";

bool WasHidden(const char* bar) {
  return GetRegistry().GetNumber(platform::RegistryRoot::CurrentUser, kFormKey, bar) == 0;
}

void Save(const char* bar, bool shown) {
  GetRegistry().SetNumber(platform::RegistryRoot::CurrentUser, kFormKey, bar, shown ? 1 : 0);
}

}  // namespace

void LoadBars(MainToolBar& toolBar, MainStatusBar& statusBar) {
  if (WasHidden(kToolBar)) toolBar.Show(false);
  if (WasHidden(kStatusBar)) statusBar.Show(false);
}

void SaveBars(const MainToolBar& toolBar, const MainStatusBar& statusBar) {
  Save(kToolBar, toolBar.IsShown());
  Save(kStatusBar, statusBar.IsShown());
}

}  // namespace mindloft
