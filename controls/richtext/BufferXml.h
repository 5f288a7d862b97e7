#pragma once

#include <string>

class wxRichTextBuffer;

namespace mindloft {

// The component's own XML, in UTF-8. Nothing is made safe here.

/// Makes the component read and write its XML, also when it puts text on the clipboard; for the life of the
/// process.
void RegisterBufferXml();

/// Replaces what the buffer holds. Throws when the component refuses it.
void LoadBufferXml(wxRichTextBuffer& buffer, const std::string& xml);
std::string SaveBufferXml(wxRichTextBuffer& buffer);

}  // namespace mindloft
