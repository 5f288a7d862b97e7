#pragma once

#include <memory>

class wxString;
class wxWindow;

namespace mindloft::platform {

/// A class of the system's visual style ("ExplorerBar"), opened for a window: `OpenThemeData`. Elsewhere the
/// desktop's toolkit draws every window in its theme, so every class is open.
class VisualStyle {
 public:
  VisualStyle(const wxWindow& window, const wxString& themeClass);
  ~VisualStyle();
  VisualStyle(const VisualStyle&) = delete;
  VisualStyle& operator=(const VisualStyle&) = delete;

  /// False: the system, the desktop or the program has no visual styles, or they lack the class.
  bool IsOpen() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

/// Turns visual styles on or off for a test, until it goes.
class FakeVisualStyles {
 public:
  explicit FakeVisualStyles(bool areOn);
  ~FakeVisualStyles();
  FakeVisualStyles(const FakeVisualStyles&) = delete;
  FakeVisualStyles& operator=(const FakeVisualStyles&) = delete;
};

// What each system does for these.

/// The handle of an open class, or null.
void* OpenStyleClass(const wxWindow& window, const wxString& themeClass);
void CloseStyleClass(void* handle);

}  // namespace mindloft::platform
