#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mindloft {

/// Writes one JSON object (RFC 8259) for the journal, field by field.
class JsonObject {
 public:
  void Add(std::string_view key, std::string_view text);
  void Add(std::string_view key, const char* text) { Add(key, std::string_view(text)); }
  void Add(std::string_view key, bool value);
  void Add(std::string_view key, std::int64_t value);
  void Add(std::string_view key, std::uint32_t value) { Add(key, static_cast<std::int64_t>(value)); }
  /// An array of {"id":...,"name":...}.
  void Add(std::string_view key, const std::vector<std::pair<std::int64_t, std::string>>& objects);
  bool Empty() const { return fields_.empty(); }
  /// "{...}"; empty when nothing was added.
  std::string Text() const { return fields_.empty() ? std::string() : '{' + fields_ + '}'; }

 private:
  void Key(std::string_view key);
  std::string fields_;
};

}  // namespace mindloft
