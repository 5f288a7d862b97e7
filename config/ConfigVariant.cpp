#include "config/ConfigVariant.h"

#include <charconv>

namespace mindloft {
namespace {

template <typename Number>
wxString NumberText(Number number) {
  // The shortest text that gives the same number back; no number here needs more.
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  return wxString::FromAscii(digits, static_cast<std::size_t>(end - digits));
}

struct TextOf {
  wxString operator()(Empty) const { return {}; }
  wxString operator()(bool value) const { return value ? "True" : "False"; }
  wxString operator()(const wxString& value) const { return value; }
  wxString operator()(std::int16_t value) const { return NumberText(value); }
  wxString operator()(std::int32_t value) const { return NumberText(value); }
  wxString operator()(float value) const { return NumberText(value); }
  wxString operator()(const wxDateTime& value) const {
    return value.IsValid() ? value.Format("%Y-%m-%dT%H:%M:%S.%l") : wxString();
  }
};

}  // namespace

wxString ConfigText(const ConfigVariant& value) {
  return std::visit(TextOf(), value);
}

}  // namespace mindloft
