#pragma once

namespace mindloft {

class RichEditor;

// The dialogs for the formats at the caret. Each shows what is there, modally, and applies what was chosen as
// one step to undo; nothing when it was cancelled.

void EditFont(RichEditor& editor);
void EditParagraph(RichEditor& editor);
void ChooseStyle(RichEditor& editor);
void EditTabs(RichEditor& editor);
void EditList(RichEditor& editor);
/// Of the table that the caret is in; nothing outside one.
void EditTable(RichEditor& editor);
/// Puts a new table at the caret.
void AskForTable(RichEditor& editor);

}  // namespace mindloft
