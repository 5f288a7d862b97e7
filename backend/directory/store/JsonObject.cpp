#include "backend/directory/store/JsonObject.h"

#include <cstdio>

namespace mindloft {
namespace {

void AppendString(std::string& json, std::string_view text) {
  json += '"';
  for (char c : text) {
    if (c == '"' || c == '\\') {
      json += '\\';
      json += c;
    } else if (static_cast<unsigned char>(c) < 0x20) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned char>(c));
      json += escape;
    } else {
      json += c;
    }
  }
  json += '"';
}

}  // namespace

void JsonObject::Key(std::string_view key) {
  if (!fields_.empty()) fields_ += ',';
  AppendString(fields_, key);
  fields_ += ':';
}

void JsonObject::Add(std::string_view key, std::string_view text) {
  Key(key);
  AppendString(fields_, text);
}

void JsonObject::Add(std::string_view key, bool value) {
  Key(key);
  fields_ += value ? "true" : "false";
}

void JsonObject::Add(std::string_view key, std::int64_t value) {
  Key(key);
  fields_ += std::to_string(value);
}

void JsonObject::Add(std::string_view key, const std::vector<std::pair<std::int64_t, std::string>>& objects) {
  Key(key);
  fields_ += '[';
  for (std::size_t i = 0; i < objects.size(); ++i) {
    if (i > 0) fields_ += ',';
    fields_ += "{\"id\":" + std::to_string(objects[i].first) + ",\"name\":";
    AppendString(fields_, objects[i].second);
    fields_ += '}';
  }
  fields_ += ']';
}

}  // namespace mindloft
