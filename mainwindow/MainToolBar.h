#pragma once

#include <vector>

#include "core/forms/Images.h"
#include "mainwindow/SelectionReader.h"

class wxFrame;
class wxToolBar;

namespace mindloft {

class CommandSet;

/// The toolbar: the commands used most.
class MainToolBar {
 public:
  MainToolBar(wxFrame& frame, const CommandSet& commands) : frame_(frame), commands_(commands) {}

  /// Makes the toolbar anew, in the frame's language and direction; it stays hidden when it was.
  void Build();
  void Update(const SelectionState& selection);
  bool IsShown() const;
  void Show(bool show);

  /// The drawings of its tools.
  static std::vector<WantedImage> Images();

 private:
  wxFrame& frame_;
  const CommandSet& commands_;
};

}  // namespace mindloft
