#pragma once

#include <cairo.h>
#include <wx/dynarray.h>
#include <wx/font.h>
#include <wx/string.h>

namespace mindloft::platform {

/// For each character of the text, how wide the text is up to its end, in the order in which it is read, as
/// the context would draw it. The toolkit adds up what stands on the paper from left to right, and counts
/// what is drawn as one, such as a ligature, as one character.
wxArrayInt MeasureParts(cairo_t* context, const wxFont& font, const wxString& text);

}  // namespace mindloft::platform
