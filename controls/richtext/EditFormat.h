#pragma once

#include <wx/richtext/richtextctrl.h>

#include <vector>

namespace mindloft {

class RichEditor;

// The formats of the selection, or of the caret's paragraph and of what is typed next. Each change is one
// step to undo.

/// A paragraph as a change of formats needs it: every such change replaces the component's own object.
struct ParagraphPlace {
  wxRichTextRange range;  ///< its end is the place behind it
  wxRichTextAttr format;
};

/// The paragraphs that the selection touches, or the caret's, of the text that the caret is in.
std::vector<ParagraphPlace> SelectedParagraphs(RichEditor& editor);
/// What the first of them looks like.
wxRichTextAttr ParagraphFormat(RichEditor& editor);
/// What the character before the caret, or the first selected one, looks like.
wxRichTextAttr CharacterFormat(RichEditor& editor);

void ApplyToParagraphs(RichEditor& editor, const wxRichTextAttr& format);
void ApplyToCharacters(RichEditor& editor, const wxRichTextAttr& format);

/// Lists, as paragraphs are marked.
enum class BulletKind { None, Bullets, Numbers, Letters, Roman };
BulletKind BulletKindOf(const wxRichTextAttr& format);
/// Numbers begin at `first`.
void MakeList(RichEditor& editor, BulletKind kind, int first = 1);
/// Moves the paragraphs by steps of a centimetre, not past the margin.
void ChangeIndent(RichEditor& editor, int steps);

/// The style that the paragraph was given last; "Normal" without one.
wxString StyleOf(RichEditor& editor);
void ApplyStyleName(RichEditor& editor, const wxString& name);

}  // namespace mindloft
