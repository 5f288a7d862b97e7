#pragma once

#include <wx/string.h>

namespace mindloft {

/// The keystroke filter that all input controls share: cancels the key (sets the code to 0) when the typed
/// character is not among `characters` (`onlyThese`), or when it is (not `onlyThese`).
///
/// On a system whose default locale is Chinese, Japanese or Korean a full-width character counts as its
/// narrow form. One that `onlyThese` lets through becomes its narrow form, so that the box never holds a
/// character that is not permitted; otherwise what was typed stays as it is.
void FilterKey(const wxString& characters, int& keyCode, bool onlyThese);

/// The text as the filter sees it: full-width characters narrow where the system's locale says so.
wxString NarrowText(const wxString& text);

}  // namespace mindloft
