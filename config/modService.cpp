#include "config/modService.h"

#include "backend/corvane/ConfigDocument.h"
#include "backend/corvane/Connection.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

using Corvane::ConfigValue;

// The two differ by a blank behind the equals sign and reach the same attribute all the same.
constexpr const char* kModifyPart = "/Configuration[@Name ='";
constexpr const char* kDescribePart = "/Configuration[@Name = '";

std::string Expression(const wxString& parent, const char* part, const wxString& name,
                       const wxString& attribute) {
  // Nothing is escaped. A quotation mark would end the name early, and with a well chosen rest the expression
  // would select another entry's attribute instead of being malformed.
  if (name.Contains("'"))
    throw Error(ErrorNumber::InvalidExpression, "quotation mark in the name;" + ToUtf8(name));
  return ToUtf8(parent + part + name + "']/@" + attribute);
}

ConfigVariant AsBoolean(const ConfigValue& value) {
  return value.AsBoolean();
}
ConfigVariant AsString(const ConfigValue& value) {
  return ToWx(value.AsString());
}
ConfigVariant AsInteger(const ConfigValue& value) {
  return value.AsInteger();
}
ConfigVariant AsLong(const ConfigValue& value) {
  return value.AsLong();
}
ConfigVariant AsSingle(const ConfigValue& value) {
  return value.AsSingle();
}

/// The date's own figures, whatever the time zone: the calendar of UTC is read and taken as the local one.
ConfigVariant AsDate(const ConfigValue& value) {
  const wxDateTime utc(wxLongLong(value.AsDate()));
  const auto parts = utc.GetTm(wxDateTime::UTC);
  return wxDateTime(parts.mday, parts.mon, parts.year, parts.hour, parts.min, parts.sec, parts.msec);
}

struct Kind {
  const char* name;
  ConfigVariant (*read)(const ConfigValue&);
};
constexpr Kind kKinds[] = {{"AsBoolean", AsBoolean}, {"AsString", AsString}, {"AsInteger", AsInteger},
                           {"AsLong", AsLong},       {"AsDate", AsDate},     {"AsSingle", AsSingle}};

}  // namespace

void UserConfigModify(const wxString& parent, const wxString& name, const wxString& attribute,
                      const ConfigVariant& value) noexcept try {
  const auto connection = GetConnection();
  if (!connection) throw Error(ErrorNumber::NotLoggedIn);
  connection->UserConfig()->SetValue(Expression(parent, kModifyPart, name, attribute),
                                     ToUtf8(ConfigText(value)));
} catch (...) {
  ReportOnly("modService", "UserConfigModify");
}

ConfigVariant UserConfigDescribe(const wxString& parent, const wxString& name, const wxString& attribute,
                                 const wxString& kind, const ConfigVariant& defaultValue) noexcept try {
  const auto connection = GetConnection();
  if (!connection) return Empty();
  for (const auto& known : kKinds) {
    if (kind != known.name) continue;
    return known.read(connection->UserConfig()->Select(Expression(parent, kDescribePart, name, attribute),
                                                       ToUtf8(ConfigText(defaultValue))));
  }
  return Empty();
} catch (...) {
  ReportOnly("modService", "UserConfigDescribe");
  return Empty();
}

}  // namespace mindloft
