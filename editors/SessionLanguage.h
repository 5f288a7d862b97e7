#pragma once

namespace mindloft {

/// Lets the session of the login order and search names by the rules of the program's language; whoever shows
/// names shows them anew afterwards. Where the directory has to sort all users for that, which it does once
/// for each language, the user sees how far it is and can cancel it. Then, and where it fails, the names keep
/// the order that they have; a failure is told once the windows show the language. Nothing happens while
/// nobody is logged in.
void SetSessionLanguage();

}  // namespace mindloft
