#pragma once

#include <wx/string.h>

namespace mindloft {

/// The path of the registry file of a language; empty when it has none.
wxString LanguageRegistryFile(int code);

/// Makes a language the console's by importing its registry file, and does not wait for that: once the import
/// has taken effect, all open windows change to the language and it is the one of the next start. At once
/// where the program imports the file itself.
///
/// False when nothing was begun: the user has been told why, and nothing has changed. An import that has
/// begun and then does not take effect is told too, and the present language stays.
bool ImportLanguage(int code, const wxString& registryFile);

/// Forgets the import under way; at the program's end.
void EndLanguageImport();

}  // namespace mindloft
