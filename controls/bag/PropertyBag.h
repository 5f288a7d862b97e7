#pragma once

#include <wx/string.h>

#include <utility>
#include <vector>

namespace mindloft {

/// The kept properties of one control as they stand in a form's resource: names and texts, in their order.
class PropertyBag {
 public:
  using Entry = std::pair<wxString, wxString>;

  /// Replaces what stands under the name.
  void Write(const wxString& name, const wxString& text);
  /// Null when the property is missing.
  const wxString* Find(const wxString& name) const;
  const std::vector<Entry>& Entries() const { return entries_; }

 private:
  std::vector<Entry> entries_;
};

}  // namespace mindloft
