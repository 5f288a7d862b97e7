#pragma once

#include <wx/toplevel.h>

#include <set>

namespace mindloft::test {

/// All that the form says: title, labels, tips, tabs, headings and rows of lists, nodes of trees, choices,
/// menus with their tips, tools, parts of the status bar. Without the signs of access keys.
std::set<wxString> ShownTexts(const wxTopLevelWindow& form);

/// No text of the form is one of the program's in another language than the present one, and at least `least`
/// are in the present one. `stored`: names of the directory that happen to be texts of the program too.
void ExpectTextsOfLanguage(const wxTopLevelWindow& form, std::size_t least,
                           const std::set<wxString>& stored = {});

}  // namespace mindloft::test
