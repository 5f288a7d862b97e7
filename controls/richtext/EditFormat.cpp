#include "controls/richtext/EditFormat.h"

#include <algorithm>

#include "controls/richtext/OwnAlignment.h"
#include "controls/richtext/RichEditor.h"
#include "controls/richtext/RichStyles.h"

namespace mindloft {
namespace {

constexpr int kListIndent = 60;
constexpr int kIndentStep = 100;
constexpr int kFarthestIndent = 1500;

long CaretPlace(RichEditor& editor) {
  return editor.GetAdjustedCaretPosition(editor.GetCaretPosition());
}

ParagraphPlace PlaceOf(const wxRichTextParagraph& paragraph) {
  const wxRichTextRange& range = paragraph.GetRange();
  return {wxRichTextRange(range.GetStart(), range.GetEnd() + 1), paragraph.GetCombinedAttributes()};
}

void ApplyTo(RichEditor& editor, const wxRichTextRange& range, const wxRichTextAttr& format) {
  editor.SetStyleEx(
      range, format,
      wxRICHTEXT_SETSTYLE_WITH_UNDO | wxRICHTEXT_SETSTYLE_OPTIMIZE | wxRICHTEXT_SETSTYLE_PARAGRAPHS_ONLY);
}

int BulletStyleOf(BulletKind kind) {
  switch (kind) {
    case BulletKind::Bullets:
      return wxTEXT_ATTR_BULLET_STYLE_STANDARD;
    case BulletKind::Numbers:
      return wxTEXT_ATTR_BULLET_STYLE_ARABIC | wxTEXT_ATTR_BULLET_STYLE_PERIOD;
    case BulletKind::Letters:
      return wxTEXT_ATTR_BULLET_STYLE_LETTERS_LOWER | wxTEXT_ATTR_BULLET_STYLE_PERIOD;
    case BulletKind::Roman:
      return wxTEXT_ATTR_BULLET_STYLE_ROMAN_UPPER | wxTEXT_ATTR_BULLET_STYLE_PERIOD;
    case BulletKind::None:
      break;
  }
  return wxTEXT_ATTR_BULLET_STYLE_NONE;
}

/// A batch of changes that is one step to undo.
class UndoStep {
 public:
  explicit UndoStep(RichEditor& editor) : editor_(editor) { editor_.BeginBatchUndo(wxString()); }
  ~UndoStep() { editor_.EndBatchUndo(); }
  UndoStep(const UndoStep&) = delete;
  UndoStep& operator=(const UndoStep&) = delete;

 private:
  RichEditor& editor_;
};

}  // namespace

std::vector<ParagraphPlace> SelectedParagraphs(RichEditor& editor) {
  std::vector<ParagraphPlace> paragraphs;
  auto* text = editor.GetFocusObject();
  const long start = editor.SelectionStart();
  const long length = editor.SelectionLength();
  if (length == 0) {
    if (const auto* paragraph = text->GetParagraphAtPosition(CaretPlace(editor)))
      paragraphs.push_back(PlaceOf(*paragraph));
    return paragraphs;
  }
  for (auto* node = text->GetChildren().GetFirst(); node; node = node->GetNext()) {
    auto* paragraph = dynamic_cast<wxRichTextParagraph*>(node->GetData());
    if (!paragraph || paragraph->GetRange().GetEnd() < start) continue;
    if (paragraph->GetRange().GetStart() >= start + length) break;
    paragraphs.push_back(PlaceOf(*paragraph));
  }
  return paragraphs;
}

wxRichTextAttr ParagraphFormat(RichEditor& editor) {
  const auto paragraphs = SelectedParagraphs(editor);
  return paragraphs.empty() ? editor.GetBasicStyle() : paragraphs.front().format;
}

wxRichTextAttr CharacterFormat(RichEditor& editor) {
  wxRichTextAttr format;
  const bool selected = editor.SelectionLength() > 0;
  editor.GetStyle(selected ? editor.SelectionStart() : CaretPlace(editor), format);
  if (!selected && editor.IsDefaultStyleShowing()) wxRichTextApplyStyle(format, editor.GetDefaultStyleEx());
  return format;
}

void ApplyToParagraphs(RichEditor& editor, const wxRichTextAttr& format) {
  const UndoStep step(editor);
  for (const auto& paragraph : SelectedParagraphs(editor)) ApplyTo(editor, paragraph.range, format);
}

void ApplyToCharacters(RichEditor& editor, const wxRichTextAttr& format) {
  const long length = editor.SelectionLength();
  if (length > 0) {
    const long start = editor.SelectionStart();
    editor.SetStyleEx(
        wxRichTextRange(start, start + length), format,
        wxRICHTEXT_SETSTYLE_WITH_UNDO | wxRICHTEXT_SETSTYLE_OPTIMIZE | wxRICHTEXT_SETSTYLE_CHARACTERS_ONLY);
    return;
  }
  wxRichTextAttr next = editor.GetDefaultStyleEx();
  wxRichTextApplyStyle(next, format);
  editor.SetAndShowDefaultStyle(next);
}

BulletKind BulletKindOf(const wxRichTextAttr& format) {
  if (!format.HasBulletStyle()) return BulletKind::None;
  const int style = format.GetBulletStyle();
  if (style & (wxTEXT_ATTR_BULLET_STYLE_STANDARD | wxTEXT_ATTR_BULLET_STYLE_SYMBOL))
    return BulletKind::Bullets;
  if (style & wxTEXT_ATTR_BULLET_STYLE_ARABIC) return BulletKind::Numbers;
  if (style & (wxTEXT_ATTR_BULLET_STYLE_LETTERS_LOWER | wxTEXT_ATTR_BULLET_STYLE_LETTERS_UPPER))
    return BulletKind::Letters;
  if (style & (wxTEXT_ATTR_BULLET_STYLE_ROMAN_LOWER | wxTEXT_ATTR_BULLET_STYLE_ROMAN_UPPER))
    return BulletKind::Roman;
  return BulletKind::None;
}

void MakeList(RichEditor& editor, BulletKind kind, int first) {
  const UndoStep step(editor);
  const wxRichTextAttr basic = editor.GetBasicStyle();
  for (const auto& [range, present] : SelectedParagraphs(editor)) {
    wxRichTextAttr format;
    if (present.GetAlignment() == UsualAlignment(basic, IsListed(present)))
      format.SetAlignment(UsualAlignment(basic, kind != BulletKind::None));
    format.SetBulletStyle(BulletStyleOf(kind));
    if (kind == BulletKind::Bullets) format.SetBulletName("standard/circle");
    if (kind != BulletKind::Bullets && kind != BulletKind::None) format.SetBulletNumber(first++);
    format.SetLeftIndent(present.GetLeftIndent(), kind == BulletKind::None ? 0 : kListIndent);
    ApplyTo(editor, range, format);
  }
}

void ChangeIndent(RichEditor& editor, int steps) {
  const UndoStep step(editor);
  for (const auto& [range, present] : SelectedParagraphs(editor)) {
    wxRichTextAttr format;
    const int indent =
        std::clamp<int>(static_cast<int>(present.GetLeftIndent()) + steps * kIndentStep, 0, kFarthestIndent);
    format.SetLeftIndent(indent, static_cast<int>(present.GetLeftSubIndent()));
    ApplyTo(editor, range, format);
  }
}

wxString StyleOf(RichEditor& editor) {
  const wxString name = ParagraphFormat(editor).GetParagraphStyleName();
  return name.empty() ? wxString(kNormalStyle) : name;
}

void ApplyStyleName(RichEditor& editor, const wxString& name) {
  const wxRichTextAttr style = StyleFormat(name, editor.GetBasicStyle());
  const UndoStep step(editor);
  for (const auto& [range, present] : SelectedParagraphs(editor)) {
    // The characters look as the style says, too; their own colours and weights go.
    editor.SetStyleEx(range, style, wxRICHTEXT_SETSTYLE_WITH_UNDO | wxRICHTEXT_SETSTYLE_PARAGRAPHS_ONLY);
    wxRichTextAttr characters = style;
    characters.SetFlags(characters.GetFlags() & wxTEXT_ATTR_CHARACTER);
    editor.SetStyleEx(
        wxRichTextRange(range.GetStart(), range.GetEnd() - 1), characters,
        wxRICHTEXT_SETSTYLE_WITH_UNDO | wxRICHTEXT_SETSTYLE_OPTIMIZE | wxRICHTEXT_SETSTYLE_CHARACTERS_ONLY);
  }
}

}  // namespace mindloft
