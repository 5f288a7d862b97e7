#pragma once

#include <wx/toplevel.h>

#include <functional>
#include <set>

namespace mindloft::test {

class ModalDriver;

/// Switches the program through all of its languages, the present one last, tells every open window, and lets
/// `look` look at each.
void InEveryLanguage(const std::function<void()>& look);

/// What the form shows now fits: every control lies inside what holds it and over no other, no label, button,
/// list heading or part of a status bar is cut off, and no access key is there twice.
void ExpectFits(const wxTopLevelWindow& form);

/// The form fits, reads in the direction of the present language and speaks no other one; see
/// ExpectTextsOfLanguage.
void ExpectLooks(const wxTopLevelWindow& form, std::size_t least, const std::set<wxString>& stored = {});

/// In every language: opens the form anew by `open`, expects its looks, and leaves it by the button.
void ExpectLooksOpened(ModalDriver& modal, const char* name, const char* leave, std::size_t least,
                       const std::function<void()>& open);

}  // namespace mindloft::test
