#include "editors/user/EMailRule.h"

namespace mindloft {

bool IsEMailAddress(const wxString& text) {
  const std::size_t first = text.find('@');
  return first != wxString::npos && first > 0 && first + 1 < text.length() && first == text.rfind('@');
}

}  // namespace mindloft
