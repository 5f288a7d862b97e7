#pragma once

#include <wx/event.h>

#include <cstdint>
#include <functional>

#include "controls/explorer/TypeAhead.h"

namespace mindloft {

class ExplorerList;

/// What keys and mouse do in an explorer list, the same on every desktop: the native controls would each keep
/// a selection of their own.
class ExplorerListInput {
 public:
  /// Lives as long as the list.
  explicit ExplorerListInput(ExplorerList& list);

  std::function<bool(int keyCode, int modifiers)> keyDown;  ///< asked before any key is handled here
  std::function<void(std::int64_t row)> activated;          ///< double click or Enter
  std::function<void(wxPoint screen)> contextMenu;
  std::function<void(std::int64_t row)> checkClicked;  ///< a click on the check box, or Space

  /// The rows are others now: what was typed means nothing any more.
  void Reset() { typed_.Reset(); }

 private:
  void OnKeyDown(wxKeyEvent& event);
  void OnChar(wxKeyEvent& event);
  void OnButton(wxMouseEvent& event);
  void OnContextMenu(wxContextMenuEvent& event);

  bool HandleKey(int key, int modifiers);
  /// The row that a movement key leads to; -1 for another key.
  std::int64_t Target(int key) const;
  void MoveTo(std::int64_t row, int modifiers);
  void Activate(std::int64_t row);
  void JumpToTyped();
  /// Where a menu opens that was asked for with a key.
  wxPoint MenuPlace() const;

  ExplorerList& list_;
  TypeAhead typed_;
};

}  // namespace mindloft
