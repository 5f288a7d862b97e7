#pragma once

class wxFrame;

namespace mindloft {

class ctExplorer;

/// The place of the explorer in the main window, and the explorer's border, whose place is remembered.
class WorkingArea {
 public:
  /// Puts an explorer, named ctMainForm, into the frame. The frame owns it and must outlive this object.
  explicit WorkingArea(wxFrame& frame);

  ctExplorer& Explorer() const { return *explorer_; }

  /// Replaces the explorer by a new one in the frame's layout direction: a window cannot be mirrored once its
  /// parts are there. Tree, columns, rows and handlers are the caller's to restore.
  void Rebuild();

  /// Empties the list and lets no event of the explorer out any more: its rows may not be asked for after
  /// logout.
  void Disconnect();

  /// The border's place between two runs of the program.
  void LoadBorder();
  void SaveBorder() const;

 private:
  void Create();

  wxFrame& frame_;
  ctExplorer* explorer_ = nullptr;
};

}  // namespace mindloft
