#pragma once

#include <wx/string.h>

namespace mindloft {

enum class PasswordStrength { Weak, Fair, Strong };

/// How hard a password is to guess, judged by its own look: the bits of a random text of as many characters
/// from the same kinds of characters, where one that repeats the last or counts on from it adds nothing.
/// Below 50 bits is weak, from 75 on strong; one that holds the user's name is weak.
PasswordStrength StrengthOf(const wxString& password, const wxString& userName);

}  // namespace mindloft
