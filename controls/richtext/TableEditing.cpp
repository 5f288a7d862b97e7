#include "controls/richtext/TableEditing.h"

#include <wx/richtext/richtextctrl.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "controls/richtext/CellFonts.h"
#include "controls/richtext/OwnAlignment.h"
#include "controls/richtext/Paragraphs.h"
#include "controls/richtext/RichEditor.h"

namespace mindloft {
namespace {

constexpr int kDefaultPadding = 10;
constexpr int kWholeWidth = 100;

void SetBorder(wxRichTextAttr& attributes, bool shown) {
  wxTextAttrBorders& border = attributes.GetTextBoxAttr().GetBorder();
  border.SetStyle(shown ? wxTEXT_BOX_ATTR_BORDER_SOLID : wxTEXT_BOX_ATTR_BORDER_NONE);
  border.SetColour(*wxBLACK);
  border.SetWidth(1, wxTEXT_ATTR_UNITS_PIXELS);
}

void SetPadding(wxRichTextAttr& attributes, int tenths) {
  wxTextAttrDimensions& padding = attributes.GetTextBoxAttr().GetPadding();
  for (wxTextAttrDimension* side :
       {&padding.GetLeft(), &padding.GetRight(), &padding.GetTop(), &padding.GetBottom()})
    side->SetValue(tenths, wxTEXT_ATTR_UNITS_TENTHS_MM);
}

wxRichTextAttr CellLook() {
  wxRichTextAttr attributes;
  SetBorder(attributes, true);
  SetPadding(attributes, kDefaultPadding);
  return attributes;
}

/// What new cells look like: as the one beside them.
wxRichTextAttr LookOfCell(const TableCell& place) {
  const auto* cell = place.table->GetCell(place.row, place.column);
  return cell ? cell->GetAttributes() : CellLook();
}

/// Goes to the cell, or to the nearest that is there.
void GoTo(RichEditor& editor, const TableCell& place) {
  const int row = std::clamp(place.row, 0, place.table->GetRowCount() - 1);
  const int column = std::clamp(place.column, 0, place.table->GetColumnCount() - 1);
  if (auto* cell = place.table->GetCell(row, column)) editor.SetFocusObject(cell);
}

wxTextAttrDimension& WidthOf(wxRichTextObject& object) {
  return object.GetAttributes().GetTextBoxAttr().GetWidth();
}

/// Without widths of their own, columns would be as wide as their texts ask for, and move while somebody
/// types.
void MakeColumnsEven(wxRichTextTable& table) {
  const int share = kWholeWidth / table.GetColumnCount();
  ForCellsOf(table,
             [share](wxRichTextCell& cell) { WidthOf(cell).SetValue(share, wxTEXT_ATTR_UNITS_PERCENTAGE); });
}

/// Whether the columns share the table's width evenly, as those of new tables do.
bool HasEvenColumns(const wxRichTextTable& table) {
  int share = 0;
  bool isEven = true;
  ForCellsOf(table, [&](wxRichTextCell& cell) {
    const auto& width = WidthOf(cell);
    if (share == 0) share = width.GetValue();
    isEven = isEven && width.IsValid() && width.GetUnits() == wxTEXT_ATTR_UNITS_PERCENTAGE &&
             width.GetValue() == share;
  });
  return isEven;
}

void ShowChanged(RichEditor& editor, wxRichTextTable& table) {
  GiveCellsFont(editor);
  ForCellsOf(table, [&](wxRichTextCell& cell) { GiveOwnAlignment(cell, editor.GetBasicStyle()); });
  // Also what holds the cell is laid out anew: the font decides how high an empty one is.
  if (auto* cell = table.GetCell(0, 0)) cell->InvalidateHierarchy(wxRICHTEXT_ALL);
  editor.LayoutContent();
  editor.Refresh();
}

/// A new table, before it is in a text. Not as the toolkit's WriteTable makes it, which puts the basic style
/// in place of the table's own look.
std::unique_ptr<wxRichTextTable> MakeTable(RichEditor& editor, int rows, int columns) {
  auto table = std::make_unique<wxRichTextTable>(&editor.GetBuffer());
  wxRichTextAttr look = editor.GetBasicStyle();
  look.GetTextBoxAttr().Reset();
  look.GetTextBoxAttr().GetWidth().SetValue(kWholeWidth, wxTEXT_ATTR_UNITS_PERCENTAGE);
  table->SetAttributes(look);
  table->CreateTable(rows, columns);
  wxRichTextAttr cellLook = CellLook();
  cellLook.SetTextColour(look.GetTextColour());
  ForCellsOf(*table, [&](wxRichTextCell& cell) { cell.SetAttributes(cellLook); });
  MakeColumnsEven(*table);
  table->SetParent(nullptr);
  return table;
}

/// A table has a paragraph of its own: in a line with a table that fills the width, the toolkit would wrap
/// the last word as well.
void BeginParagraph(RichEditor& editor) {
  const auto* paragraph = editor.GetFocusObject()->GetParagraphAtPosition(editor.GetInsertionPoint());
  if (paragraph && paragraph->GetRange().GetStart() != editor.GetInsertionPoint()) editor.Newline();
}

/// Behind a table there is always a paragraph to go on in.
void EndParagraph(RichEditor& editor, long place) {
  auto* text = editor.GetFocusObject();
  const auto* paragraph = text->GetParagraphAtPosition(place);
  if (!paragraph) return;
  const long end = paragraph->GetRange().GetEnd();
  if (place < end || end >= text->GetOwnRange().GetEnd())
    text->InsertNewlineWithUndo(&editor.GetBuffer(), place, &editor,
                                wxRICHTEXT_INSERT_WITH_PREVIOUS_PARAGRAPH_STYLE);
}

/// Puts a row there that looks like the place's, column by column.
TableCell AddRow(const TableCell& place, int row) {
  std::vector<wxRichTextAttr> looks;
  looks.reserve(place.table->GetColumnCount());
  for (int column = 0; column < place.table->GetColumnCount(); ++column)
    looks.push_back(LookOfCell({place.table, place.row, column}));
  place.table->AddRows(row, 1, LookOfCell(place));
  for (int column = 0; column < place.table->GetColumnCount(); ++column) {
    if (auto* cell = place.table->GetCell(row, column)) cell->SetAttributes(looks[column]);
  }
  return {place.table, row, place.column};
}

/// Runs a change of the table's structure, which may free the cell that the caret is in. It returns where the
/// caret goes.
template <typename Change>
void ChangeTable(RichEditor& editor, Change change) {
  const TableCell present = CaretCell(editor);
  if (!present.table) return;
  const bool isEven = HasEvenColumns(*present.table);
  editor.LeaveCells();
  editor.SelectNone();
  const TableCell place = change(present);
  if (isEven) MakeColumnsEven(*place.table);
  ShowChanged(editor, *place.table);
  GoTo(editor, place);
  if (editor.changed) editor.changed();
}

}  // namespace

TableCell CaretCell(RichEditor& editor) {
  auto* cell = dynamic_cast<wxRichTextCell*>(editor.GetFocusObject());
  auto* table = cell ? dynamic_cast<wxRichTextTable*>(cell->GetParent()) : nullptr;
  if (!table) return {};
  for (int row = 0; row < table->GetRowCount(); ++row) {
    for (int column = 0; column < table->GetColumnCount(); ++column) {
      if (table->GetCell(row, column) == cell) return {table, row, column};
    }
  }
  return {};
}

void InsertRow(RichEditor& editor) {
  ChangeTable(editor, [](const TableCell& place) { return AddRow(place, place.row); });
}

void AppendRow(RichEditor& editor) {
  ChangeTable(editor, [](const TableCell& place) {
    const TableCell added = AddRow(place, place.row + 1);
    return TableCell{added.table, added.row, 0};
  });
}

void InsertColumn(RichEditor& editor) {
  ChangeTable(editor, [](const TableCell& place) {
    place.table->AddColumns(place.column, 1, LookOfCell(place));
    return place;
  });
}

void DeleteRow(RichEditor& editor) {
  ChangeTable(editor, [](const TableCell& place) {
    if (place.table->GetRowCount() > 1) place.table->DeleteRows(place.row, 1);
    return place;
  });
}

void DeleteColumn(RichEditor& editor) {
  ChangeTable(editor, [](const TableCell& place) {
    if (place.table->GetColumnCount() > 1) place.table->DeleteColumns(place.column, 1);
    return place;
  });
}

void PutTable(RichEditor& editor, int rows, int columns) {
  editor.BeginBatchUndo(wxString());
  BeginParagraph(editor);
  const long place = editor.GetInsertionPoint();
  auto* text = editor.GetFocusObject();
  text->InsertObjectWithUndo(&editor.GetBuffer(), place, MakeTable(editor, rows, columns).release(), &editor,
                             wxRICHTEXT_INSERT_WITH_PREVIOUS_PARAGRAPH_STYLE);
  EndParagraph(editor, place + 1);
  editor.EndBatchUndo();
  auto* written = dynamic_cast<wxRichTextTable*>(text->GetLeafObjectAtPosition(place));
  if (!written) return;
  ShowChanged(editor, *written);
  GoTo(editor, {written, 0, 0});
}

TableLook LookOf(const wxRichTextTable& table) {
  TableLook look;
  const auto& width = table.GetAttributes().GetTextBoxAttr().GetWidth();
  if (width.IsValid() && width.GetUnits() == wxTEXT_ATTR_UNITS_PERCENTAGE)
    look.widthPerCent = width.GetValue();
  const auto* cell = table.GetCell(0, 0);
  if (!cell) return look;
  const auto& box = cell->GetAttributes().GetTextBoxAttr();
  const auto& padding = box.GetPadding().GetLeft();
  if (padding.IsValid() && padding.GetUnits() == wxTEXT_ATTR_UNITS_TENTHS_MM)
    look.paddingTenths = padding.GetValue();
  look.hasBorder = box.GetBorder().GetLeft().HasStyle() &&
                   box.GetBorder().GetLeft().GetStyle() != wxTEXT_BOX_ATTR_BORDER_NONE;
  return look;
}

void ApplyLook(RichEditor& editor, wxRichTextTable& table, const TableLook& look) {
  editor.BeginBatchUndo(wxString());
  wxRichTextAttr whole;
  whole.GetTextBoxAttr().GetWidth().SetValue(look.widthPerCent, wxTEXT_ATTR_UNITS_PERCENTAGE);
  editor.SetStyle(&table, whole);
  wxRichTextAttr inner;
  SetBorder(inner, look.hasBorder);
  SetPadding(inner, look.paddingTenths);
  ForCellsOf(table, [&](wxRichTextCell& cell) { editor.SetStyle(&cell, inner); });
  editor.EndBatchUndo();
  editor.LayoutContent();
  editor.Refresh();
}

}  // namespace mindloft
