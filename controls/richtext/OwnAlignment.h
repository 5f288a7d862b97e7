#pragma once

#include <wx/richtext/richtextbuffer.h>

namespace mindloft {

// The component aligns a paragraph by what the paragraph itself says, and puts all others at the left,
// whatever the basic style says.

bool IsListed(const wxRichTextAttr& paragraph);

/// How paragraphs are aligned that nobody has aligned: as the basic style says, but those of lists at the
/// left, where the component draws their signs.
wxTextAttrAlignment UsualAlignment(const wxRichTextAttr& basic, bool isListed);

/// Gives the paragraphs that have no alignment of their own the usual one, and keeps it for them. What reads
/// from the left stays there, and in a text that does altogether nothing changes: whoever opens it in another
/// language must not turn it round.
void GiveOwnAlignment(wxRichTextParagraphLayoutBox& text, const wxRichTextAttr& basic);

}  // namespace mindloft
