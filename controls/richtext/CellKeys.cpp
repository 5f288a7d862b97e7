#include "controls/richtext/CellKeys.h"

#include <wx/event.h>

#include <algorithm>

#include "controls/richtext/RichEditor.h"
#include "controls/richtext/SeenPlaces.h"
#include "controls/richtext/TableEditing.h"

namespace mindloft {
namespace {

enum class Side { Beginning, End };

/// The cell that comes so many after this one in reading order; null past the table's ends.
wxRichTextCell* CellAfter(const TableCell& place, int steps) {
  const int columns = place.table->GetColumnCount();
  int index = place.row * columns + place.column + steps;
  for (; index >= 0 && index < columns * place.table->GetRowCount(); index += steps) {
    auto* cell = place.table->GetCell(index / columns, index % columns);
    if (cell && cell->IsShown()) return cell;
  }
  return nullptr;
}

long LastPlace(const wxRichTextParagraphLayoutBox& text) {
  return std::max(0L, text.GetOwnRange().GetEnd());
}

void GoTo(RichEditor& editor, wxRichTextParagraphLayoutBox& text, long place) {
  editor.SetFocusObject(&text);
  editor.SelectText(place, 0);
  editor.ScrollIntoView(editor.GetCaretPosition(), WXK_RIGHT);
}

void GoTo(RichEditor& editor, wxRichTextParagraphLayoutBox& text, Side side) {
  GoTo(editor, text, side == Side::Beginning ? 0 : LastPlace(text));
}

/// Beside the table in the text that holds it: where its paragraph holds nothing else, in the one beside
/// that.
void LeaveTable(RichEditor& editor, const wxRichTextTable& table, Side side) {
  auto* text = table.GetParentContainer();
  const auto* paragraph = table.GetParent();
  if (!text || !paragraph) return;
  const long start = table.GetRange().GetStart();
  long place = side == Side::Beginning ? start : start + 1;
  const bool isEdge = side == Side::Beginning ? start == paragraph->GetRange().GetStart()
                                              : place == paragraph->GetRange().GetEnd();
  if (isEdge && side == Side::Beginning && start > 0) --place;
  if (isEdge && side == Side::End && place < LastPlace(*text)) ++place;
  GoTo(editor, *text, place);
}

/// Goes to the line of the cell that lies at that side, below or above where the caret was.
void GoToLine(RichEditor& editor, wxRichTextCell& cell, int x, Side side) {
  constexpr int kInside = 2;
  const auto& lines =
      dynamic_cast<const wxRichTextParagraph&>(
          *(side == Side::Beginning ? cell.GetChildren().GetFirst() : cell.GetChildren().GetLast())
               ->GetData())
          .GetLines();
  if (lines.empty()) return GoTo(editor, cell, side);
  const wxRichTextLine& line = side == Side::Beginning ? *lines.front() : *lines.back();
  const auto place = PlaceSeenAt(editor, cell, {x, line.GetAbsolutePosition().y + kInside});
  if (!place) return GoTo(editor, cell, side);
  GoTo(editor, cell, *place);
}

/// The table at that place of the text with the caret.
wxRichTextTable* TableAt(const RichEditor& editor, long place) {
  auto* table = dynamic_cast<wxRichTextTable*>(editor.GetFocusObject()->GetLeafObjectAtPosition(place));
  return table && table->GetRange().GetStart() == place ? table : nullptr;
}

/// The table that the caret meets when it goes on: beside it, or at the near edge of the next paragraph.
wxRichTextTable* TableBeside(const RichEditor& editor, int steps) {
  const long caret = editor.GetInsertionPoint();
  const long beside = steps > 0 ? caret : caret - 1;
  if (auto* table = TableAt(editor, beside)) return table;
  const auto* paragraph = editor.GetFocusObject()->GetParagraphAtPosition(beside);
  const bool isMark = paragraph && paragraph->GetRange().GetEnd() == beside;
  return isMark ? TableAt(editor, beside + steps) : nullptr;
}

/// The cell of the row, counted from the end for -1, that lies below or above x.
wxRichTextCell* CellOfRow(const wxRichTextTable& table, int row, int x) {
  if (row < 0) row += table.GetRowCount();
  wxRichTextCell* nearest = nullptr;
  for (int column = 0; column < table.GetColumnCount(); ++column) {
    auto* cell = table.GetCell(row, column);
    if (!cell || !cell->IsShown()) continue;
    if (!nearest || cell->GetPosition().x <= x) nearest = cell;
  }
  return nearest;
}

/// Tab selects what stands in the cell, so that what is typed takes its place.
bool Tab(RichEditor& editor, const TableCell& place, int steps) {
  if (auto* cell = CellAfter(place, steps)) {
    GoTo(editor, *cell, Side::Beginning);
    editor.SelectText(0, editor.EndPlace());
  } else if (steps > 0 && editor.IsEditable()) {
    AppendRow(editor);
  }
  return true;
}

bool MoveAcross(RichEditor& editor, const TableCell& place, int steps) {
  const Side side = steps > 0 ? Side::Beginning : Side::End;
  const long caret = editor.GetInsertionPoint();
  if (place.table && editor.HasSelection()) {
    const long start = editor.SelectionStart();
    editor.SelectText(steps > 0 ? start + editor.SelectionLength() : start, 0);
    return true;
  }
  if (auto* met = TableBeside(editor, steps)) {
    const TableCell edge = steps > 0 ? TableCell{met, 0, -1} : TableCell{met, met->GetRowCount(), 0};
    if (auto* cell = CellAfter(edge, steps)) GoTo(editor, *cell, side);
    return true;
  }
  if (!place.table || caret != (steps > 0 ? editor.EndPlace() : 0)) return false;
  if (auto* cell = CellAfter(place, steps))
    GoTo(editor, *cell, side);
  else
    LeaveTable(editor, *place.table, steps > 0 ? Side::End : Side::Beginning);
  return true;
}

bool MoveBetweenLines(RichEditor& editor, const TableCell& place, int lines) {
  const int x = SeenCaretX(editor);
  const Side side = lines > 0 ? Side::Beginning : Side::End;
  if (const auto* line = LineFromCaret(editor, lines)) {
    const auto* inner = TableAt(editor, line->GetAbsoluteRange().GetStart());
    auto* cell = inner ? CellOfRow(*inner, lines > 0 ? 0 : -1, x) : nullptr;
    if (cell) GoToLine(editor, *cell, x, side);
    return cell;
  }
  if (!place.table) return false;
  const int row = place.row + lines;
  auto* cell = row >= 0 && row < place.table->GetRowCount() ? CellOfRow(*place.table, row, x) : nullptr;
  if (cell)
    GoToLine(editor, *cell, x, side);
  else
    LeaveTable(editor, *place.table, lines > 0 ? Side::End : Side::Beginning);
  return true;
}

/// Whether the table leaves no room beside it.
bool IsBlock(const wxRichTextTable* table) {
  return table &&
         table->GetAttributes().GetTextBoxAttr().GetWidth().GetUnits() == wxTEXT_ATTR_UNITS_PERCENTAGE;
}

}  // namespace

void BeginParagraphBesideTable(RichEditor& editor) {
  const long place = editor.GetInsertionPoint();
  const auto* paragraph = editor.GetFocusObject()->GetParagraphAtPosition(place);
  if (!paragraph) return;
  const bool isBefore = place == paragraph->GetRange().GetStart() && IsBlock(TableAt(editor, place));
  const bool isAfter = place == paragraph->GetRange().GetEnd() && IsBlock(TableAt(editor, place - 1));
  if (!isBefore && !isAfter) return;
  editor.Newline();
  if (isBefore) editor.SelectText(place, 0);
}

bool RunCellKey(RichEditor& editor, const wxKeyEvent& event) {
  const int modifiers = event.GetModifiers();
  const bool isPlain = modifiers == wxMOD_NONE;
  const bool isControl = modifiers == wxMOD_CONTROL;
  const TableCell place = CaretCell(editor);
  switch (event.GetKeyCode()) {
    case WXK_TAB:
      if (!place.table || (!isPlain && modifiers != wxMOD_SHIFT)) return false;
      return Tab(editor, place, isPlain ? 1 : -1);
    case WXK_RIGHT:
    case WXK_NUMPAD_RIGHT:
      return (isPlain || isControl) && MoveAcross(editor, place, RunsToTheLeftAtCaret(editor) ? -1 : 1);
    case WXK_LEFT:
    case WXK_NUMPAD_LEFT:
      return (isPlain || isControl) && MoveAcross(editor, place, RunsToTheLeftAtCaret(editor) ? 1 : -1);
    case WXK_DOWN:
    case WXK_NUMPAD_DOWN:
      return isPlain && MoveBetweenLines(editor, place, 1);
    case WXK_UP:
    case WXK_NUMPAD_UP:
      return isPlain && MoveBetweenLines(editor, place, -1);
    case WXK_HOME:
    case WXK_NUMPAD_HOME:
    case WXK_END:
    case WXK_NUMPAD_END: {
      if (!place.table || !isControl) return false;
      const bool toEnd = event.GetKeyCode() == WXK_END || event.GetKeyCode() == WXK_NUMPAD_END;
      GoTo(editor, editor.GetBuffer(), toEnd ? Side::End : Side::Beginning);
      return true;
    }
    default:
      return false;
  }
}

}  // namespace mindloft
