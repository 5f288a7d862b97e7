#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <cstdint>
#include <variant>

namespace mindloft {

/// Nothing: no value was read or none is given.
using Empty = std::monostate;

/// A value of any of the kinds that the configuration document keeps.
using ConfigVariant = std::variant<Empty, bool, wxString, std::int16_t, std::int32_t, float, wxDateTime>;

/// The value as the document's text, independent of the user's locale: "True" or "False", digits, a date as
/// ISO 8601 without a time zone. Empty gives an empty text.
wxString ConfigText(const ConfigVariant& value);

}  // namespace mindloft
