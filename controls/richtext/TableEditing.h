#pragma once

class wxRichTextTable;

namespace mindloft {

class RichEditor;

/// The table and the place in it that the caret is in; no table: it is in none.
struct TableCell {
  wxRichTextTable* table = nullptr;
  int row = 0;
  int column = 0;
};
TableCell CaretCell(RichEditor& editor);

// Each is one step to undo, and nothing outside a table. The caret stays at the same place of the table
// where nothing else is said.

void InsertRow(RichEditor& editor);
/// Below the caret's row; the caret goes to its first cell.
void AppendRow(RichEditor& editor);
void InsertColumn(RichEditor& editor);
/// Nothing for the last one.
void DeleteRow(RichEditor& editor);
void DeleteColumn(RichEditor& editor);

/// Puts a table with lines around its cells at the caret, which goes to its first cell, in a paragraph of its
/// own that is not the last. The table fills the width that is there, in columns of the same width, and goes
/// on doing so when columns come and go. One step to undo.
void PutTable(RichEditor& editor, int rows, int columns);

/// What the table's dialog shows.
struct TableLook {
  int widthPerCent = 100;
  int paddingTenths = 0;  ///< of a millimetre
  bool hasBorder = true;
};
TableLook LookOf(const wxRichTextTable& table);
void ApplyLook(RichEditor& editor, wxRichTextTable& table, const TableLook& look);

}  // namespace mindloft
