#pragma once

namespace mindloft {

class MainStatusBar;
class MainToolBar;

/// Hides the bars that were hidden when the main window was closed last.
void LoadBars(MainToolBar& toolBar, MainStatusBar& statusBar);
void SaveBars(const MainToolBar& toolBar, const MainStatusBar& statusBar);

}  // namespace mindloft
