#include "controls/richtext/EditCommands.h"

#include <wx/accel.h>
#include <wx/menu.h>

#include <cstring>

#include "backend/tessaline/Services.h"
#include "controls/richtext/EditFormat.h"
#include "controls/richtext/RichTextControl.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

using C = RichTextControl;

bool Always(const C& control) {
  return control.GetEnable();
}

bool MayChange(const C& control) {
  return control.GetEnable() && !control.Locked();
}

bool HasSelection(const C& control) {
  return control.GetEnable() && control.Editor().HasSelection();
}

bool MayCut(const C& control) {
  return MayChange(control) && control.Editor().HasSelection();
}

bool InTable(const C& control) {
  return control.CanModifyTable();
}

template <wxTextAttrAlignment alignment>
void Align(C& control) {
  wxRichTextAttr format;
  format.SetAlignment(alignment);
  ApplyToParagraphs(control.Editor(), format);
}

template <wxTextAttrAlignment alignment>
bool IsAligned(const C& control) {
  const auto present = ParagraphFormat(control.Editor()).GetAlignment();
  return (present == wxTEXT_ALIGNMENT_DEFAULT ? wxTEXT_ALIGNMENT_LEFT : present) == alignment;
}

template <BulletKind kind>
bool IsList(const C& control) {
  return BulletKindOf(ParagraphFormat(control.Editor())) == kind;
}

template <BulletKind kind>
void ToggleList(C& control) {
  MakeList(control.Editor(), IsList<kind>(control) ? BulletKind::None : kind);
}

std::vector<EditCommand> MakeCommands() {
  constexpr int kCtrl = wxMOD_CONTROL;
  return {
      {"undo", 62000, 'Z', kCtrl, [](C& c) { c.Undo(); },
       [](const C& c) { return MayChange(c) && c.Editor().CanUndo(); }, nullptr},
      {"redo", 62001, 'Y', kCtrl, [](C& c) { c.Redo(); },
       [](const C& c) { return MayChange(c) && c.Editor().CanRedo(); }, nullptr},
      {"cut", 62002, 'X', kCtrl, [](C& c) { c.Clip(kClipCut); }, MayCut, nullptr},
      {"copy", 62003, 'C', kCtrl, [](C& c) { c.Clip(kClipCopy); }, HasSelection, nullptr},
      {"paste", 62004, 'V', kCtrl, [](C& c) { c.Clip(kClipPaste); },
       [](const C& c) { return MayChange(c) && c.Editor().CanPaste(); }, nullptr},
      {"clear", 62005, 0, 0, [](C& c) { c.Clip(kClipDelete); }, MayCut, nullptr},
      {"select-all", 62006, 'A', kCtrl,
       [](C& c) {
         c.Editor().LeaveCells();
         c.Editor().SelectText(0, c.Editor().EndPlace());
       },
       Always, nullptr},
      {"find", 62007, 'F', kCtrl, [](C& c) { c.Find(); }, Always, nullptr},
      {"replace", 62008, 'H', kCtrl, [](C& c) { c.FindReplace(); }, MayChange, nullptr},
      {"font", 62009, 'D', kCtrl, [](C& c) { c.FontDialog(); }, MayChange, nullptr},
      {"paragraph", 62010, 0, 0, [](C& c) { c.ParagraphDialog(); }, MayChange, nullptr},
      {"styles", 62011, 0, 0, [](C& c) { c.StytlesDialog(); }, MayChange, nullptr},
      {"tabs", 62012, 0, 0, [](C& c) { c.TabsDialog(); }, MayChange, nullptr},
      {"list", 62013, 0, 0, [](C& c) { c.ListAttribute(); }, MayChange, nullptr},
      {"bold", 62014, 'B', kCtrl, [](C& c) { c.Editor().ApplyBoldToSelection(); }, MayChange,
       [](const C& c) { return c.Editor().IsSelectionBold(); }},
      {"italic", 62015, 'I', kCtrl, [](C& c) { c.Editor().ApplyItalicToSelection(); }, MayChange,
       [](const C& c) { return c.Editor().IsSelectionItalics(); }},
      {"underline", 62016, 'U', kCtrl, [](C& c) { c.Editor().ApplyUnderlineToSelection(); }, MayChange,
       [](const C& c) { return c.Editor().IsSelectionUnderlined(); }},
      {"align-left", 62017, 'L', kCtrl, Align<wxTEXT_ALIGNMENT_LEFT>, MayChange,
       IsAligned<wxTEXT_ALIGNMENT_LEFT>},
      {"align-centre", 62018, 'E', kCtrl, Align<wxTEXT_ALIGNMENT_CENTRE>, MayChange,
       IsAligned<wxTEXT_ALIGNMENT_CENTRE>},
      {"align-right", 62019, 'R', kCtrl, Align<wxTEXT_ALIGNMENT_RIGHT>, MayChange,
       IsAligned<wxTEXT_ALIGNMENT_RIGHT>},
      {"align-justify", 62020, 'J', kCtrl, Align<wxTEXT_ALIGNMENT_JUSTIFIED>, MayChange,
       IsAligned<wxTEXT_ALIGNMENT_JUSTIFIED>},
      {"bullets", 62021, 0, 0, ToggleList<BulletKind::Bullets>, MayChange, IsList<BulletKind::Bullets>},
      {"numbering", 62022, 0, 0, ToggleList<BulletKind::Numbers>, MayChange, IsList<BulletKind::Numbers>},
      {"indent-more", 62023, 'M', kCtrl, [](C& c) { ChangeIndent(c.Editor(), 1); }, MayChange, nullptr},
      {"indent-less", 62024, 'M', kCtrl | wxMOD_SHIFT, [](C& c) { ChangeIndent(c.Editor(), -1); }, MayChange,
       nullptr},
      {"table", 62025, 0, 0, [](C& c) { c.NewTable(); }, MayChange, nullptr},
      {"row-insert", 62026, 0, 0, [](C& c) { c.InsertRow(); }, InTable, nullptr},
      {"column-insert", 62027, 0, 0, [](C& c) { c.InsertColumn(); }, InTable, nullptr},
      {"row-delete", 62028, 0, 0, [](C& c) { c.DeleteRow(); }, InTable, nullptr},
      {"column-delete", 62029, 0, 0, [](C& c) { c.DeleteColumn(); }, InTable, nullptr},
      {"table-properties", 62030, 0, 0, [](C& c) { c.TableProperties(); }, InTable, nullptr},
      {"grid-lines", 62035, 0, 0, [](C& c) { c.SetGridLines(!c.GridLines()); }, Always,
       [](const C& c) { return c.GridLines(); }},
      {"page-setup", 62031, 0, 0, [](C& c) { c.PageSetup(); }, Always, nullptr},
      {"print-preview", 62032, 0, 0, [](C& c) { c.PrintPreview(); }, Always, nullptr},
      {"print", 62033, 'P', kCtrl, [](C& c) { c.Print(); }, Always, nullptr},
  };
}

/// The context menu; "" is a separator, what stands in brackets a menu inside it.
constexpr const char* kMenu[] = {"undo",
                                 "redo",
                                 "",
                                 "cut",
                                 "copy",
                                 "paste",
                                 "clear",
                                 "select-all",
                                 "",
                                 "find",
                                 "replace",
                                 "",
                                 "font",
                                 "paragraph",
                                 "styles",
                                 "tabs",
                                 "list",
                                 "[",
                                 "table",
                                 "row-insert",
                                 "column-insert",
                                 "row-delete",
                                 "column-delete",
                                 "table-properties",
                                 "grid-lines",
                                 "]",
                                 "",
                                 "page-setup",
                                 "print-preview",
                                 "print"};
constexpr int kTableText = 62034;

wxString MenuText(const EditCommand& command) {
  wxString text = GetResource().GetString(command.text);
  text.Replace("&", "&&");
  if (command.key) text += "\t" + wxAcceleratorEntry(command.modifiers, command.key).ToString();
  return text;
}

void AddItem(wxMenu& menu, RichTextControl& control, const EditCommand& command) {
  const auto kind = command.isChecked ? wxITEM_CHECK : wxITEM_NORMAL;
  auto* item = menu.Append(wxID_ANY, MenuText(command), wxString(), kind);
  item->Enable(command.isEnabled(control));
  if (command.isChecked) item->Check(command.isChecked(control));
  menu.Bind(
      wxEVT_MENU, [&](wxCommandEvent&) { RunCommand(control, command); }, item->GetId());
}

}  // namespace

const std::vector<EditCommand>& EditCommands() {
  static const std::vector<EditCommand> commands = MakeCommands();
  return commands;
}

const EditCommand& CommandOf(const char* name) {
  for (const EditCommand& command : EditCommands()) {
    if (std::strcmp(command.name, name) == 0) return command;
  }
  throw Error(ErrorNumber::Unexpected, std::string("there is no editing command ") + name);
}

void RunCommand(RichTextControl& control, const EditCommand& command) {
  Guarded("RichTextControl", command.name, [&] {
    command.run(control);
    control.UpdateBars();
  });
}

bool RunCommandOfKey(RichTextControl& control, const wxKeyEvent& event) {
  if (event.GetKeyCode() == WXK_INSERT && event.GetModifiers() == wxMOD_NONE) {
    control.Editor().SetOverwrite(!control.Editor().IsOverwriting());
    Guarded("RichTextControl", "Insert", [&] { control.UpdateBars(); });
    return true;
  }
  for (const EditCommand& command : EditCommands()) {
    if (command.key == 0 || command.key != event.GetKeyCode() || command.modifiers != event.GetModifiers())
      continue;
    // A key that can do nothing now does not type anything either.
    if (command.isEnabled(control)) RunCommand(control, command);
    return true;
  }
  return false;
}

void ShowEditMenu(RichTextControl& control) {
  wxMenu menu;
  wxMenu* inner = nullptr;
  for (const char* name : kMenu) {
    wxMenu& target = inner ? *inner : menu;
    if (*name == '[')
      inner = new wxMenu;
    else if (*name == ']') {
      menu.AppendSubMenu(inner, GetResource().GetString(kTableText));
      inner = nullptr;
    } else if (*name)
      AddItem(target, control, CommandOf(name));
    else
      target.AppendSeparator();
  }
  control.Editor().PopupMenu(&menu);
}

}  // namespace mindloft
