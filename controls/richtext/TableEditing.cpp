#include "controls/richtext/TableEditing.h"

#include <wx/richtext/richtextctrl.h>

#include <algorithm>

#include "controls/richtext/CellFonts.h"
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

/// Runs a change of the table's structure, which may free the cell that the caret is in.
template <typename Change>
void ChangeTable(RichEditor& editor, Change change) {
  const TableCell place = CaretCell(editor);
  if (!place.table) return;
  editor.LeaveCells();
  editor.SelectNone();
  change(place);
  GiveCellsFont(editor);
  editor.LayoutContent();
  GoTo(editor, place);
  editor.Refresh();
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
  ChangeTable(editor, [](const TableCell& place) { place.table->AddRows(place.row, 1, LookOfCell(place)); });
}

void InsertColumn(RichEditor& editor) {
  ChangeTable(editor,
              [](const TableCell& place) { place.table->AddColumns(place.column, 1, LookOfCell(place)); });
}

void DeleteRow(RichEditor& editor) {
  ChangeTable(editor, [](const TableCell& place) {
    if (place.table->GetRowCount() > 1) place.table->DeleteRows(place.row, 1);
  });
}

void DeleteColumn(RichEditor& editor) {
  ChangeTable(editor, [](const TableCell& place) {
    if (place.table->GetColumnCount() > 1) place.table->DeleteColumns(place.column, 1);
  });
}

void PutTable(RichEditor& editor, int rows, int columns) {
  wxRichTextAttr table;
  table.GetTextBoxAttr().GetWidth().SetValue(kWholeWidth, wxTEXT_ATTR_UNITS_PERCENTAGE);
  if (auto* written = editor.WriteTable(rows, columns, table, CellLook())) {
    GiveCellsFont(editor);
    editor.LayoutContent();
    GoTo(editor, {written, 0, 0});
  }
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
  for (int row = 0; row < table.GetRowCount(); ++row) {
    for (int column = 0; column < table.GetColumnCount(); ++column) {
      if (auto* cell = table.GetCell(row, column)) editor.SetStyle(cell, inner);
    }
  }
  editor.EndBatchUndo();
  editor.LayoutContent();
  editor.Refresh();
}

}  // namespace mindloft
