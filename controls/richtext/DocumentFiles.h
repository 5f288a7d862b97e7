#pragma once

#include <wx/string.h>

namespace mindloft {

class RichTextControl;

/// Asks for a file and puts its text in place of the control's, after a question when there is one that would
/// be lost: HTML with its formats, other text as paragraphs; all in UTF-8. False, and nothing has changed,
/// when the user cancelled or the file is none of these, which is told.
bool OpenDocumentFile(RichTextControl& control);

/// Asks for a file and writes the control's document to it as HTML; `name` is proposed.
void SaveDocumentFile(RichTextControl& control, const wxString& name);

}  // namespace mindloft
