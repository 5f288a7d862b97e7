#pragma once

#include <wx/string.h>

#include <vector>

namespace mindloft {

/// One known web server: the name of its registry value (a GUID text) and its URL.
struct KnownUrl {
  wxString key;
  wxString url;
};

/// The known web servers, in the registry's order; those whose value is no text are left out. Empty when
/// there is no such key.
std::vector<KnownUrl> ReadUrlList();
/// Stores a URL under its key. Throws Error(Registry).
void WriteUrl(const KnownUrl& known);
/// Throws Error(Registry).
void DeleteUrl(const wxString& key);

/// Without the blanks around it.
wxString TrimmedUrl(const wxString& text);

}  // namespace mindloft
