#include "controls/bag/PropertyBag.h"

#include <algorithm>

namespace mindloft {
namespace {

template <typename Entries>
auto FindEntry(Entries& entries, const wxString& name) {
  return std::find_if(entries.begin(), entries.end(), [&](const auto& entry) { return entry.first == name; });
}

}  // namespace

void PropertyBag::Write(const wxString& name, const wxString& text) {
  const auto found = FindEntry(entries_, name);
  if (found == entries_.end())
    entries_.emplace_back(name, text);
  else
    found->second = text;
}

const wxString* PropertyBag::Find(const wxString& name) const {
  const auto found = FindEntry(entries_, name);
  return found == entries_.end() ? nullptr : &found->second;
}

}  // namespace mindloft
