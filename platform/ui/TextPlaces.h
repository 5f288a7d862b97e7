#pragma once

#include <wx/dc.h>
#include <wx/string.h>

#include <vector>

namespace mindloft::platform {

/// Whether letters of it run from right to left.
bool HasRightToLeftLetters(const wxString& text);

/// Where the caret is seen before each character of a text that the context draws in its font at 0, and
/// behind the last; in the context's units. Where it cannot stand, as between a letter and its marks, as
/// before.
std::vector<int> CaretOffsets(const wxDC& dc, const wxString& text);

}  // namespace mindloft::platform
