#pragma once

#include <wx/gdicmn.h>

#include <optional>

class wxMouseEvent;
class wxRichTextLine;
class wxRichTextParagraphLayoutBox;

namespace mindloft {

class RichEditor;

// The toolkit looks for caret and mouse as if all letters ran from left to right. In lines with others, these
// lead it to what is seen; elsewhere they change nothing.

// On the paper as it would be without zoom.

/// Where the caret is seen.
int SeenCaretX(RichEditor& editor);
/// The place in the text, not in texts inside it, that is seen at the point; nothing where no line of it is.
std::optional<long> PlaceSeenAt(RichEditor& editor, wxRichTextParagraphLayoutBox& text, const wxPoint& point);

/// Moves the caret's picture from where the toolkit has just put it.
void ShowCaretAsSeen(RichEditor& editor);
/// Moves the caret's picture to where the toolkit must look, so many lines below, for what is seen there.
void AimCaret(RichEditor& editor, int lines);
/// Moves what the event points at to where the toolkit must look for what is seen there.
void AimMouse(RichEditor& editor, wxMouseEvent& event);
/// Whether the letters at the caret run from right to left, so that the next one stands to the left.
bool RunsToTheLeftAtCaret(RichEditor& editor);

/// The line of the text with the caret that lies so many below the caret's; null past its ends.
wxRichTextLine* LineFromCaret(const RichEditor& editor, int lines);

}  // namespace mindloft
