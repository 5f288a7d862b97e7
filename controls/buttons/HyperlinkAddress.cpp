#include "controls/buttons/HyperlinkAddress.h"

#include <wx/wxcrt.h>

namespace mindloft {

wxString HyperlinkAddress(const wxString& url) {
  // A scheme is letters, digits, "+", "-" and "."; what follows a colon after a host's name is a port's
  // number.
  const std::size_t colon = url.find_first_of(":/?#");
  const bool hasColon = colon != wxString::npos && url[colon] == ':';
  const bool hasPort = hasColon && colon + 1 < url.length() && wxIsdigit(url[colon + 1]);
  return hasColon && !hasPort ? url : "http://" + url;
}

}  // namespace mindloft
