#pragma once

#include <wx/string.h>

#include <functional>
#include <string>
#include <utility>

#include "backend/tessaline/Text.h"

namespace mindloft {

/// One field of a record, for bringing two changes of it together: what it is called, how it reads, and how
/// it is compared and copied.
template <typename Record>
struct RecordField {
  int label = 0;  ///< number of the text that names it
  std::function<wxString(const Record&)> text;
  std::function<bool(const Record&, const Record&)> isSame;
  std::function<void(Record& to, const Record& from)> copy;
  int readsAlike =
      0;  ///< number of the text (%1 the value) for values that differ and read alike; 0: none do
};

/// A field that reads as `show` says.
template <typename Record, typename Value>
RecordField<Record> Field(int label, Value Record::*member, std::function<wxString(const Value&)> show) {
  return {label, [member, show = std::move(show)](const Record& record) { return show(record.*member); },
          [member](const Record& one, const Record& other) { return one.*member == other.*member; },
          [member](Record& to, const Record& from) { to.*member = from.*member; }};
}

/// A field of text.
template <typename Record>
RecordField<Record> Field(int label, std::string Record::*member) {
  return Field<Record, std::string>(label, member, [](const std::string& text) { return ToWx(text); });
}

}  // namespace mindloft
