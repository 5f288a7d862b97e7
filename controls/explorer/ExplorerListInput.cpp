#include "controls/explorer/ExplorerListInput.h"

#include <algorithm>

#include "controls/explorer/ExplorerList.h"
#include "core/ErrorHandling.h"

namespace mindloft {

ExplorerListInput::ExplorerListInput(ExplorerList& list) : list_(list) {
  list.Bind(wxEVT_KEY_DOWN,
            [this](wxKeyEvent& event) { Guarded("ctExplorer", "ListKeyDown", [&] { OnKeyDown(event); }); });
  list.Bind(wxEVT_CHAR,
            [this](wxKeyEvent& event) { Guarded("ctExplorer", "ListChar", [&] { OnChar(event); }); });
  const auto button = [this](wxMouseEvent& event) {
    Guarded("ctExplorer", "ListMouse", [&] { OnButton(event); });
  };
  for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_DCLICK, wxEVT_RIGHT_DOWN})
    list.RowsWindow()->Bind(type, button);
  list.Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent& event) {
    Guarded("ctExplorer", "ListActivated", [&] { Activate(event.GetIndex()); });
  });
  list.Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent& event) {
    Guarded("ctExplorer", "ListMenu", [&] { OnContextMenu(event); });
  });
}

void ExplorerListInput::OnKeyDown(wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  const int modifiers = event.GetModifiers();
  if (keyDown && keyDown(key, modifiers)) return;
  if (!HandleKey(key, modifiers)) event.Skip();
}

std::int64_t ExplorerListInput::Target(int key) const {
  const std::int64_t focus = list_.Selection().Focus();
  const std::int64_t last = list_.Selection().RowCount() - 1;
  const std::int64_t page = list_.RowsPerPage();
  const std::int64_t top = list_.TopRow();
  switch (key) {
    case WXK_HOME:
    case WXK_NUMPAD_HOME:
      return 0;
    case WXK_END:
    case WXK_NUMPAD_END:
      return last;
    case WXK_UP:
    case WXK_NUMPAD_UP:
      return std::max<std::int64_t>(focus - 1, 0);
    case WXK_DOWN:
    case WXK_NUMPAD_DOWN:
      return std::min(focus + 1, last);
    // First to the edge of what is shown, then by pages.
    case WXK_PAGEUP:
    case WXK_NUMPAD_PAGEUP:
      return focus > top && focus < top + page ? top : std::max<std::int64_t>(focus - page + 1, 0);
    case WXK_PAGEDOWN:
    case WXK_NUMPAD_PAGEDOWN:
      return focus >= top && focus < top + page - 1 ? std::min(top + page - 1, last)
                                                    : std::min(std::max(focus, top) + page - 1, last);
    default:
      return -1;
  }
}

bool ExplorerListInput::HandleKey(int key, int modifiers) {
  const std::int64_t focus = list_.Selection().Focus();
  if ((modifiers & wxMOD_ALT) == 0) {
    if (const std::int64_t target = Target(key); target >= 0) {
      typed_.Reset();
      MoveTo(target, modifiers);
      return true;
    }
  }
  if (key == 'A' && modifiers == wxMOD_CONTROL) {
    list_.ChangeSelection([](SelectionModel& selection) { return selection.SelectAll(); });
    return true;
  }
  if ((key == WXK_RETURN || key == WXK_NUMPAD_ENTER) && modifiers == wxMOD_NONE) {
    Activate(focus);
    return true;
  }
  if (key == WXK_SPACE && !typed_.Active() && focus >= 0) {
    if (modifiers == wxMOD_NONE && list_.HasChecks()) {
      if (checkClicked) checkClicked(focus);
      return true;
    }
    list_.ChangeSelection([&](SelectionModel& selection) {
      if (modifiers == wxMOD_CONTROL) return selection.Toggle(focus);
      return modifiers == wxMOD_SHIFT ? selection.ExtendTo(focus, false) : selection.SelectOnly(focus);
    });
    return true;
  }
  if (key == WXK_BACK && typed_.Active()) {
    typed_.Backspace();
    JumpToTyped();
    return true;
  }
  return false;
}

void ExplorerListInput::MoveTo(std::int64_t row, int modifiers) {
  const bool control = (modifiers & wxMOD_CONTROL) != 0;
  list_.ChangeSelection([&](SelectionModel& selection) {
    if (modifiers & wxMOD_SHIFT) return selection.ExtendTo(row, control);
    if (!control) return selection.SelectOnly(row);
    selection.MoveFocus(row);
    return false;
  });
}

void ExplorerListInput::Activate(std::int64_t row) {
  if (row >= 0 && row < list_.Selection().RowCount() && activated) activated(row);
}

void ExplorerListInput::OnChar(wxKeyEvent& event) {
  const wxChar32 character = static_cast<wxChar32>(event.GetUnicodeKey());
  // Ctrl and Alt together are the third shift of many keyboards.
  const int command = event.GetModifiers() & (wxMOD_CONTROL | wxMOD_ALT);
  const bool isCommand = command == wxMOD_CONTROL || command == wxMOD_ALT;
  if (character < 0x20 || character == 0x7F || isCommand) {
    event.Skip();
    return;
  }
  typed_.Append(wxUniChar(character));
  JumpToTyped();
}

void ExplorerListInput::JumpToTyped() {
  if (!typed_.Active()) return;
  const std::int64_t focus = std::max<std::int64_t>(list_.Selection().Focus(), 0);
  // The first character leads on from the present row, a longer text may still mean it.
  const std::int64_t next = list_.Selection().Focus() < 0 ? 0 : focus + 1;
  std::int64_t row = list_.Rows().FindPrefix(typed_.Text(), typed_.Text().length() == 1 ? next : focus);
  if (row < 0 && typed_.IsRepetition()) row = list_.Rows().FindPrefix(typed_.Text().Left(1), next);
  if (row >= 0) list_.ChangeSelection([&](SelectionModel& selection) { return selection.SelectOnly(row); });
}

void ExplorerListInput::OnButton(wxMouseEvent& event) {
  auto* window = dynamic_cast<wxWindow*>(event.GetEventObject());
  const std::int64_t row = list_.RowAt(window ? window : list_.RowsWindow(), event.GetPosition());
  list_.SetFocus();
  typed_.Reset();
  const bool right = event.GetEventType() == wxEVT_RIGHT_DOWN;
  const int modifiers = event.GetModifiers();
  list_.ChangeSelection([&](SelectionModel& selection) {
    if (row < 0)
      return (modifiers & (wxMOD_SHIFT | wxMOD_CONTROL)) == 0 && selection.Assign({}, selection.Focus());
    if (right) {
      // The menu is for all selected rows when the click is on one of them.
      if (!selection.IsSelected(row)) return selection.SelectOnly(row);
      selection.MoveFocus(row);
      return false;
    }
    if (modifiers & wxMOD_SHIFT) return selection.ExtendTo(row, (modifiers & wxMOD_CONTROL) != 0);
    return modifiers & wxMOD_CONTROL ? selection.Toggle(row) : selection.SelectOnly(row);
  });
  const bool onCheckBox = !right && row >= 0 && (modifiers & (wxMOD_SHIFT | wxMOD_CONTROL)) == 0 &&
                          list_.IsOnCheckBox(row, window ? window : list_.RowsWindow(), event.GetPosition());
  // The second click of a fast user is one more click on the box.
  if (onCheckBox && checkClicked)
    checkClicked(row);
  else if (event.GetEventType() == wxEVT_LEFT_DCLICK)
    Activate(row);
  // The desktop makes the menu's event of a right click.
  if (right) event.Skip();
}

wxPoint ExplorerListInput::MenuPlace() const {
  wxRect rect;
  const std::int64_t focus = list_.Selection().Focus();
  if (focus < list_.TopRow() || !list_.GetItemRect(static_cast<long>(focus), rect))
    return list_.ClientToScreen(wxPoint(0, 0));
  return list_.ClientToScreen(rect.GetBottomLeft());
}

void ExplorerListInput::OnContextMenu(wxContextMenuEvent& event) {
  const wxPoint place = event.GetPosition() == wxDefaultPosition ? MenuPlace() : event.GetPosition();
  if (contextMenu) contextMenu(place);
}

}  // namespace mindloft
