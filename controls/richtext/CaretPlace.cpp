#include "controls/richtext/CaretPlace.h"

#include <algorithm>

#include "controls/print/PageSettings.h"
#include "controls/richtext/RichEditor.h"
#include "controls/richtext/RichUnits.h"

namespace mindloft {
namespace {

/// The paragraph of the main text in which the cell stands.
const wxRichTextObject* OutermostParagraph(const wxRichTextObject* object, const wxRichTextObject* main) {
  while (object && object->GetParent() != main) object = object->GetParent();
  return object;
}

}  // namespace

CaretPlace PlaceOfCaret(const RichEditor& editor, const PageSettings& page) {
  CaretPlace place;
  const auto& main = editor.GetBuffer();
  auto* text = editor.GetFocusObject();
  const long caret = editor.GetInsertionPoint();
  auto* paragraph = text->GetParagraphAtPosition(editor.GetAdjustedCaretPosition(editor.GetCaretPosition()));
  if (!paragraph) return place;
  // Lines of the paragraphs before, then those of this one.
  const wxRichTextObject* outermost = OutermostParagraph(paragraph, &main);
  long lines = 0;
  for (auto* node = main.GetChildren().GetFirst(); node && node->GetData() != outermost;
       node = node->GetNext()) {
    if (auto* before = dynamic_cast<wxRichTextParagraph*>(node->GetData()))
      lines += std::max<long>(1, static_cast<long>(before->GetLines().size()));
  }
  long start = paragraph->GetRange().GetStart();
  int top = outermost ? outermost->GetPosition().y : 0;
  if (text == &main) {
    long inside = 0;
    for (const wxRichTextLine* line : paragraph->GetLines()) {
      start = line->GetAbsoluteRange().GetStart();
      top = line->GetAbsolutePosition().y;
      if (caret <= line->GetAbsoluteRange().GetEnd() || line == paragraph->GetLines().back()) break;
      ++inside;
    }
    lines += inside;
  }
  place.line = lines + 1;
  place.column = std::max(0L, caret - start) + 1;
  const int height = TenthsToPixels(PrintedArea(page).height, editor);
  if (height > 0) place.page = top / height + 1;
  return place;
}

}  // namespace mindloft
