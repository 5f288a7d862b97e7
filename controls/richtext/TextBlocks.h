#pragma once

#include <wx/string.h>

#include <vector>

class wxRichTextParagraph;
class wxRichTextParagraphLayoutBox;
class wxRichTextCtrl;

namespace mindloft {

/// A paragraph of the main text or of a cell: where it stands, and its text, in which each character has the
/// place of its own; a table is one character that nobody types.
struct TextBlock {
  wxRichTextParagraphLayoutBox* container = nullptr;
  long start = 0;
  wxString text;
};

/// All paragraphs in the order in which they are read.
std::vector<TextBlock> TextBlocks(wxRichTextCtrl& editor);

wxString TextOfParagraph(const wxRichTextParagraph& paragraph);

/// Whether a character of such a text is neither a blank nor what stands for an object.
bool IsTyped(const wxUniChar& character);

}  // namespace mindloft
