#include "controls/rows/RecordRows.h"

#include "backend/tessaline/Services.h"

namespace mindloft {

wxString JoinFields(const std::vector<wxString>& fields) {
  return GetStringHelper().JoinStrings(fields, wxString(wxUniChar(kFieldSeparator)));
}

}  // namespace mindloft
