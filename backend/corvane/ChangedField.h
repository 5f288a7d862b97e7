#pragma once

#include <optional>

namespace mindloft::Corvane {

/// Puts a field into a change when it was edited; true when it was.
template <typename Value>
bool TakeChanged(std::optional<Value>& change, const Value& stored, const Value& edited) {
  if (stored == edited) return false;
  change = edited;
  return true;
}

}  // namespace mindloft::Corvane
