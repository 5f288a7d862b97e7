#pragma once

#include <wx/string.h>

#include <cstdint>
#include <vector>

namespace mindloft::Tessaline {

class StringHelper {
 public:
  wxString JoinStrings(const std::vector<wxString>& texts, const wxString& separator) const;
  /// In characters (Unicode code points).
  std::int32_t Length(const wxString& text) const;
  /// True for an empty text and for one of white space only.
  bool IsBlank(const wxString& text) const;
};

}  // namespace mindloft::Tessaline
