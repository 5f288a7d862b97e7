#pragma once

class wxKeyEvent;

namespace mindloft {

class RichEditor;

/// Keys that lead through a table, into it and out of it, where the toolkit's would type or keep the caret
/// where it is: Tab and Shift+Tab go to the next and the previous cell, whose text is selected, and Tab in
/// the last one adds a row unless the text is locked; arrows go on in the next cell, or outside, from a
/// cell's edges; Ctrl+Home and Ctrl+End are those of the whole text. False when the key is none of these
/// here.
bool RunCellKey(RichEditor& editor, const wxKeyEvent& event);

/// For what is going to be typed: beside a table as wide as the text it would be wrapped with the table.
void BeginParagraphBesideTable(RichEditor& editor);

}  // namespace mindloft
