#pragma once

namespace mindloft {

class RichEditor;

// The component gives text in cells a font of its own instead of the main text's. While a document is shown,
// the paragraphs of its cells have that font themselves; what is stored does without it, so that a document
// comes out as it went in.

/// For cells whose paragraphs have no font.
void GiveCellsFont(RichEditor& editor);
/// Takes it from the paragraphs that have none other.
void TakeCellsFont(RichEditor& editor);

}  // namespace mindloft
