#pragma once

#include <optional>
#include <string_view>

#include "backend/directory/store/JsonObject.h"

namespace mindloft {

/// Puts new values into a record and remembers the differences for the journal.
class FieldChanges {
 public:
  /// Nothing happens when there is no new value or it is the stored one.
  template <typename Value>
  void Put(std::string_view field, Value& stored, const std::optional<Value>& value) {
    if (!value || *value == stored) return;
    before_.Add(field, stored);
    after_.Add(field, *value);
    stored = *value;
  }
  /// What the journal is to tell of a change that is put elsewhere.
  void Note(std::string_view field, std::int64_t before, std::int64_t after) {
    before_.Add(field, before);
    after_.Add(field, after);
  }
  bool Empty() const { return after_.Empty(); }
  const JsonObject& Before() const { return before_; }
  const JsonObject& After() const { return after_; }

 private:
  JsonObject before_, after_;
};

}  // namespace mindloft
