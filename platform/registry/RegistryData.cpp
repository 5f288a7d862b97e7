#include "platform/registry/RegistryData.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <vector>

#include "platform/Unicode.h"

namespace mindloft::platform {
namespace {

// The types that a registry gives its values; hex data without a number are binary.
enum Type : unsigned { String = 1, ExpandString = 2, Binary = 3, DWord = 4 };

std::optional<unsigned> ParseHex(std::string_view digits, std::size_t most) {
  unsigned number = 0;
  if (digits.empty() || digits.size() > most) return {};
  auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
  if (failure != std::errc() || end != digits.data() + digits.size()) return {};
  return number;
}

std::optional<std::vector<unsigned char>> ParseBytes(std::string_view list) {
  std::vector<unsigned char> bytes;
  while (!list.empty()) {
    auto comma = std::min(list.find(','), list.size());
    auto byte = ParseHex(list.substr(0, comma), 2);
    if (!byte || comma + 1 == list.size()) return {};
    bytes.push_back(static_cast<unsigned char>(*byte));
    list.remove_prefix(std::min(comma + 1, list.size()));
  }
  return bytes;
}

RegistryValue Decoded(unsigned type, const std::vector<unsigned char>& bytes) {
  if ((type == String || type == ExpandString) && bytes.size() % 2 == 0) {
    std::u16string text;
    for (std::size_t i = 0; i < bytes.size(); i += 2) {
      text += static_cast<char16_t>(bytes[i] | bytes[i + 1] << 8);
    }
    return Utf8FromUtf16(text);
  }
  if (type == DWord && bytes.size() == 4) {
    return static_cast<std::uint32_t>(bytes[0]) | static_cast<std::uint32_t>(bytes[1]) << 8 |
           static_cast<std::uint32_t>(bytes[2]) << 16 | static_cast<std::uint32_t>(bytes[3]) << 24;
  }
  return OtherRegistryType();
}

/// hex:..., hex(type):...
std::optional<RegistryEntry> ParseHexData(std::string_view data) {
  auto colon = data.find(':');
  if (colon == std::string_view::npos || !data.starts_with("hex")) return {};
  unsigned type = Binary;
  if (auto kind = data.substr(3, colon - 3); !kind.empty()) {
    if (!kind.starts_with('(') || !kind.ends_with(')')) return {};
    auto number = ParseHex(kind.substr(1, kind.size() - 2), 8);
    if (!number) return {};
    type = *number;
  }
  auto bytes = ParseBytes(data.substr(colon + 1));
  if (!bytes) return {};
  return RegistryEntry{{}, Decoded(type, *bytes), std::string(data)};
}

/// A text that cannot stand between quotation marks on one line.
std::string HexText(std::string_view text) {
  std::string data = "hex(1):";
  for (char16_t unit : Utf16FromUtf8(text) + u'\0') {
    char bytes[8];
    std::snprintf(bytes, sizeof bytes, "%02x,%02x,", unit & 0xFF, unit >> 8);
    data += bytes;
  }
  data.pop_back();
  return data;
}

}  // namespace

std::optional<std::string> ParseQuoted(std::string_view data, std::string_view& rest) {
  if (!data.starts_with('"')) return {};
  std::string text;
  for (std::size_t i = 1; i < data.size(); ++i) {
    if (data[i] == '"') {
      rest = data.substr(i + 1);
      return text;
    }
    if (data[i] == '\\') {
      if (++i == data.size() || (data[i] != '\\' && data[i] != '"')) return {};
    }
    text += data[i];
  }
  return {};
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (char c : text) {
    if (c == '\\' || c == '"') quoted += '\\';
    quoted += c;
  }
  return quoted + "\"";
}

std::optional<RegistryEntry> ParseRegistryData(std::string_view data) {
  std::string_view rest;
  if (auto text = ParseQuoted(data, rest)) {
    if (!rest.empty()) return {};
    return RegistryEntry{{}, *text, {}};
  }
  constexpr std::string_view Number = "dword:";
  if (data.starts_with(Number)) {
    auto number = ParseHex(data.substr(Number.size()), 8);
    if (!number) return {};
    return RegistryEntry{{}, static_cast<std::uint32_t>(*number), {}};
  }
  return ParseHexData(data);
}

std::string WriteRegistryData(const RegistryEntry& entry) {
  if (!entry.raw.empty()) return entry.raw;
  if (const auto* number = std::get_if<std::uint32_t>(&entry.value)) {
    char data[20];
    std::snprintf(data, sizeof data, "dword:%08x", *number);
    return data;
  }
  if (const auto* text = std::get_if<std::string>(&entry.value)) {
    return HasControlCharacter(*text) ? HexText(*text) : Quoted(*text);
  }
  return "hex:";
}

}  // namespace mindloft::platform
