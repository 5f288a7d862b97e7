#include "controls/richtext/FormatDialogs.h"

#include <wx/toplevel.h>

#include "controls/richtext/EditFormat.h"
#include "controls/richtext/RichEditor.h"
#include "controls/richtext/TableEditing.h"
#include "controls/richtext/frmInsertTable.h"
#include "controls/richtext/frmRichFont.h"
#include "controls/richtext/frmRichList.h"
#include "controls/richtext/frmRichParagraph.h"
#include "controls/richtext/frmRichStyles.h"
#include "controls/richtext/frmRichTable.h"
#include "controls/richtext/frmRichTabs.h"

namespace mindloft {
namespace {

template <typename Form, typename Format>
bool Ask(RichEditor& editor, Format& format) {
  Form form(wxGetTopLevelParent(&editor));
  return form.Ask(format);
}

}  // namespace

void EditFont(RichEditor& editor) {
  wxRichTextAttr format = CharacterFormat(editor);
  if (Ask<frmRichFont>(editor, format)) ApplyToCharacters(editor, format);
}

void EditParagraph(RichEditor& editor) {
  wxRichTextAttr format = ParagraphFormat(editor);
  if (Ask<frmRichParagraph>(editor, format)) ApplyToParagraphs(editor, format);
}

void ChooseStyle(RichEditor& editor) {
  wxString name = StyleOf(editor);
  if (Ask<frmRichStyles>(editor, name)) ApplyStyleName(editor, name);
}

void EditTabs(RichEditor& editor) {
  const wxArrayInt present = ParagraphFormat(editor).GetTabs();
  std::vector<int> stops(present.begin(), present.end());
  if (!Ask<frmRichTabs>(editor, stops)) return;
  wxRichTextAttr format;
  wxArrayInt tabs;
  for (const int stop : stops) tabs.Add(stop);
  format.SetTabs(tabs);
  ApplyToParagraphs(editor, format);
}

void EditList(RichEditor& editor) {
  const wxRichTextAttr present = ParagraphFormat(editor);
  ListFormat format{BulletKindOf(present), present.HasBulletNumber() ? present.GetBulletNumber() : 1};
  if (Ask<frmRichList>(editor, format)) MakeList(editor, format.kind, format.first);
}

void EditTable(RichEditor& editor) {
  wxRichTextTable* table = CaretCell(editor).table;
  if (!table) return;
  TableLook look = LookOf(*table);
  if (Ask<frmRichTable>(editor, look)) ApplyLook(editor, *table, look);
}

void AskForTable(RichEditor& editor) {
  TableSize size;
  if (Ask<frmInsertTable>(editor, size)) PutTable(editor, size.rows, size.columns);
}

}  // namespace mindloft
