#include "platform/registry/RegistryFileFormat.h"

#include <algorithm>
#include <optional>

#include "platform/Unicode.h"
#include "platform/registry/RegistryData.h"
#include "platform/registry/RegistryNames.h"

namespace mindloft::platform {
namespace {

constexpr std::string_view Header = "Windows Registry Editor Version 5.00";
constexpr std::pair<std::string_view, RegistryRoot> Hives[] = {
    {"HKEY_CURRENT_USER", RegistryRoot::CurrentUser}, {"HKEY_LOCAL_MACHINE", RegistryRoot::LocalMachine}};

std::string Decoded(std::string_view file) {
  if (file.starts_with("\xEF\xBB\xBF")) return std::string(file.substr(3));
  if (!file.starts_with("\xFF\xFE")) return std::string(file);
  std::u16string text;
  for (std::size_t i = 2; i + 1 < file.size(); i += 2) {
    text += static_cast<char16_t>(static_cast<unsigned char>(file[i]) |
                                  static_cast<unsigned char>(file[i + 1]) << 8);
  }
  return Utf8FromUtf16(text);
}

std::string_view Trimmed(std::string_view text) {
  auto first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// Hands out the file's lines, the continued ones of hex data joined to one.
class Lines {
 public:
  explicit Lines(std::string_view text) : left_(text) {}

  bool Next(std::string& line) {
    if (left_.empty()) return false;
    line = Take();
    while (IsContinued(line) && !left_.empty()) {
      line.pop_back();
      line += Take();
    }
    return true;
  }

 private:
  std::string Take() {
    auto end = std::min(left_.find('\n'), left_.size());
    auto line = std::string(Trimmed(left_.substr(0, end)));
    left_.remove_prefix(std::min(end + 1, left_.size()));
    return line;
  }
  /// A text's line ends in a quotation mark, so a backslash at the end can only continue hex data.
  static bool IsContinued(const std::string& line) {
    return line.ends_with('\\') && line.find("=hex") != std::string::npos;
  }

  std::string_view left_;
};

struct KeyLine {
  RegistryRoot root;
  std::string key;
  bool isDeleted;
};

/// [HKEY_CURRENT_USER\key] or [-HKEY_CURRENT_USER\key]
std::optional<KeyLine> ParseKeyLine(std::string_view line) {
  if (line.size() < 2 || !line.ends_with(']')) return {};
  auto path = line.substr(1, line.size() - 2);
  bool isDeleted = path.starts_with('-');
  if (isDeleted) path.remove_prefix(1);
  auto hiveEnd = std::min(path.find('\\'), path.size());
  for (const auto& [name, root] : Hives) {
    if (UpperCase(path.substr(0, hiveEnd)) != name) continue;
    auto key = NormalKey(std::string(path.substr(std::min(hiveEnd + 1, path.size()))));
    if ((isDeleted && key.empty()) || HasControlCharacter(key)) return {};
    return KeyLine{root, key, isDeleted};
  }
  return {};
}

/// "name"=data, @=data
std::optional<RegistryFileFormat::Step> ParseValueLine(std::string_view line, const KeyLine& key) {
  using Kind = RegistryFileFormat::Step::Kind;
  std::string name;
  std::string_view rest;
  if (line.starts_with('@')) {
    rest = line.substr(1);
  } else if (auto quoted = ParseQuoted(line, rest); quoted && !HasControlCharacter(*quoted)) {
    name = *quoted;
  } else {
    return {};
  }
  rest = Trimmed(rest);
  if (!rest.starts_with('=')) return {};
  auto data = Trimmed(rest.substr(1));
  if (data == "-") return RegistryFileFormat::Step{Kind::DeleteValue, key.root, key.key, {name, {}, {}}};
  auto entry = ParseRegistryData(data);
  if (!entry) return {};
  entry->name = name;
  return RegistryFileFormat::Step{Kind::Set, key.root, key.key, *entry};
}

/// Whether the line can be one of a whole file: no broken characters, no control characters but tabs.
bool IsText(std::string line) {
  std::erase(line, '\t');
  return IsUtf8(line) && !HasControlCharacter(line);
}

}  // namespace

RegistryFileFormat::Content RegistryFileFormat::Parse(std::string_view file) {
  Content content;
  auto text = Decoded(file);
  content.hasHeader = text.empty();
  Lines lines(text);
  std::optional<KeyLine> key;
  for (std::string line; lines.Next(line);) {
    if (line.empty() || line.starts_with(';')) continue;
    if (line == Header) {
      content.hasHeader = true;
      continue;
    }
    bool isText = IsText(line);
    if (line.starts_with('[')) {
      key = isText ? ParseKeyLine(line) : std::nullopt;
      if (key && key->isDeleted) {
        content.steps.push_back({Step::Kind::DeleteKey, key->root, key->key, {}});
        key.reset();
        continue;
      }
      if (key) continue;
    } else if (auto step = key && isText ? ParseValueLine(line, *key) : std::nullopt) {
      content.steps.push_back(std::move(*step));
      continue;
    }
    content.unreadable.push_back(line);
  }
  return content;
}

RegistryTree RegistryFileFormat::Tree(const Content& content) {
  RegistryTree tree;
  for (const auto& step : content.steps) {
    switch (step.kind) {
      case Step::Kind::Set:
        tree.Set(step.root, step.key, step.entry);
        break;
      case Step::Kind::DeleteValue:
        tree.Delete(step.root, step.key, step.entry.name);
        break;
      case Step::Kind::DeleteKey:
        tree.DeleteKey(step.root, step.key);
        break;
    }
  }
  return tree;
}

void RegistryFileFormat::Import(const Content& content, RegistryStore& store) {
  for (const auto& step : content.steps) {
    switch (step.kind) {
      case Step::Kind::Set:
        store.Set(step.root, step.key, step.entry.name, step.entry.value);
        break;
      case Step::Kind::DeleteValue:
        store.Delete(step.root, step.key, step.entry.name);
        break;
      case Step::Kind::DeleteKey:
        store.DeleteKey(step.root, step.key);
        break;
    }
  }
}

std::string RegistryFileFormat::Write(const RegistryTree& tree) {
  std::string file(Header);
  file += '\n';
  for (const auto& key : tree.Keys()) {
    if (key.entries.empty()) continue;
    file += "\n[";
    for (const auto& [name, root] : Hives) {
      if (root == key.root) file += name;
    }
    if (!key.path.empty()) file.append("\\").append(key.path);
    file += "]\n";
    for (const auto& entry : key.entries) {
      file.append(entry.name.empty() ? "@" : Quoted(entry.name)).append("=");
      file.append(WriteRegistryData(entry)).append("\n");
    }
  }
  return file;
}

}  // namespace mindloft::platform
