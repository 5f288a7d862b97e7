#pragma once

#include <wx/toplevel.h>

#include <functional>

namespace mindloft::test {

/// Switches the program through all of its languages, the present one last, tells every open window, and lets
/// `look` look at each.
void InEveryLanguage(const std::function<void()>& look);

/// What the form shows now fits: every control lies inside what holds it and over no other, no label, button,
/// list heading or part of a status bar is cut off, and no access key is there twice.
void ExpectFits(const wxTopLevelWindow& form);

}  // namespace mindloft::test
