#pragma once

#include <wx/string.h>

#include "config/ConfigVariant.h"

namespace mindloft {

// Typed access to the logged-in user's configuration document. An entry is an element `Configuration` with
// the attribute `Name`, below the element that `parent` leads to; its value is another attribute of that
// element. Failures are reported, never thrown.

/// Stores the value at the attribute, creating the entry when needed.
void UserConfigModify(const wxString& parent, const wxString& name, const wxString& attribute,
                      const ConfigVariant& value) noexcept;

/// The attribute as `kind`: "AsBoolean", "AsString", "AsInteger", "AsLong", "AsSingle" or "AsDate"; the
/// default, converted to that kind, when nothing is stored. Empty for any other kind, without a connection
/// and after a failure.
ConfigVariant UserConfigDescribe(const wxString& parent, const wxString& name, const wxString& attribute,
                                 const wxString& kind, const ConfigVariant& defaultValue) noexcept;

}  // namespace mindloft
