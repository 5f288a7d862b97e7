#pragma once

#include <wx/string.h>

#include <cstdint>

#include "controls/bag/ControlColour.h"

namespace mindloft {

// The text under which a property bag keeps a value, and back. Parsing throws TypeMismatch for a text of
// another type and Overflow for a number that does not fit.

template <typename Value>
struct PropertyText;

/// "True" or "False"; "1", "-1" and "0" are read too.
template <>
struct PropertyText<bool> {
  static wxString Format(bool value);
  static bool Parse(const wxString& text);
};

template <>
struct PropertyText<std::int16_t> {
  static wxString Format(std::int16_t value);
  static std::int16_t Parse(const wxString& text);
};

template <>
struct PropertyText<std::int32_t> {
  static wxString Format(std::int32_t value);
  static std::int32_t Parse(const wxString& text);
};

template <>
struct PropertyText<wxString> {
  static wxString Format(const wxString& value) { return value; }
  static wxString Parse(const wxString& text) { return text; }
};

/// "&H8000000F"; "#RRGGBB" is read too.
template <>
struct PropertyText<ControlColour> {
  static wxString Format(ControlColour value);
  static ControlColour Parse(const wxString& text);
};

}  // namespace mindloft
