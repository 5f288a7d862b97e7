#include "app/LogTarget.h"

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"

namespace mindloft {

void LogTarget::DoLogTextAtLevel(wxLogLevel level, const wxString& text) {
  if (level > wxLOG_Message) return;
  try {
    GetUtility().Log("toolkit: " + ToUtf8(text));
  } catch (...) {
    // Where the log cannot be written there is nobody left to tell.
  }
}

}  // namespace mindloft
