#include "backend/tessaline/LanguageFile.h"

#include <charconv>
#include <fstream>
#include <pugixml.hpp>
#include <sstream>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"
#include "platform/Paths.h"

namespace mindloft::Tessaline {
namespace {

/// No language is near it; a larger file is not read into memory.
constexpr std::uintmax_t largestFile = 8u << 20;

[[noreturn]] void ThrowDamaged(const std::string& reason) {
  throw Error(ErrorNumber::TypeMismatch, "damaged language file: " + reason);
}

[[noreturn]] void ThrowUnexpectedElement(const pugi::xml_node& node) {
  ThrowDamaged("element \"" + std::string(node.name()) + "\" inside \"" + node.parent().name() + "\"");
}

std::string Attribute(const pugi::xml_node& node, const char* name) {
  auto attribute = node.attribute(name);
  if (!attribute || !*attribute.value()) {
    ThrowDamaged("element \"" + std::string(node.name()) + "\" without \"" + name + "\"");
  }
  return attribute.value();
}

int NumberAttribute(const pugi::xml_node& node, const char* name) {
  std::string text = Attribute(node, name);
  int number = 0;
  auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number <= 0) {
    ThrowDamaged("\"" + text + "\" is no number");
  }
  return number;
}

pugi::xml_node OnlyChild(const pugi::xml_node& node, const char* name) {
  auto child = node.child(name);
  if (!child || child.next_sibling(name)) {
    ThrowDamaged("not exactly one element \"" + std::string(name) + "\"");
  }
  return child;
}

/// Calls `action` for each child element, all of which must have that name.
template <typename Action>
void ForEachChild(const pugi::xml_node& node, const char* name, Action&& action) {
  for (const auto& child : node.children()) {
    if (child.type() != pugi::node_element) continue;
    if (std::string_view(child.name()) != name) ThrowUnexpectedElement(child);
    action(child);
  }
}

std::unordered_map<int, wxString> ReadTexts(const pugi::xml_node& texts) {
  std::unordered_map<int, wxString> read;
  ForEachChild(texts, "text", [&](const pugi::xml_node& text) {
    int number = NumberAttribute(text, "id");
    if (!read.emplace(number, ToWx(text.child_value())).second) {
      ThrowDamaged("text " + std::to_string(number) + " twice");
    }
  });
  return read;
}

std::map<wxString, LanguageFile::Caption> ReadCaptions(const pugi::xml_node& form) {
  std::map<wxString, LanguageFile::Caption> captions;
  ForEachChild(form, "caption", [&](const pugi::xml_node& caption) {
    std::string control = Attribute(caption, "control");
    LanguageFile::Caption read{ToWx(caption.child_value()), ToWx(caption.attribute("tip").value())};
    if (!captions.emplace(ToWx(control), std::move(read)).second) {
      ThrowDamaged("caption of \"" + control + "\" twice");
    }
  });
  return captions;
}

template <typename Map, typename Key>
auto Find(const Map& map, const Key& key) -> std::optional<typename Map::mapped_type> {
  auto found = map.find(key);
  if (found == map.end()) return std::nullopt;
  return found->second;
}

}  // namespace

std::string LanguageFile::Read(const std::filesystem::path& file) {
  std::error_code failure;
  auto size = std::filesystem::file_size(file, failure);
  std::ifstream stream(file, std::ios::binary);
  if (failure || !stream) {
    throw Error(ErrorNumber::PathAccess, "the language file cannot be read: " + platform::PathToUtf8(file));
  }
  if (size > largestFile) ThrowDamaged("larger than " + std::to_string(largestFile) + " bytes");
  std::ostringstream content;
  content << stream.rdbuf();
  if (stream.bad() || (size > 0 && content.fail())) {
    throw Error(ErrorNumber::PathAccess, "the language file cannot be read: " + platform::PathToUtf8(file));
  }
  return std::move(content).str();
}

LanguageFile LanguageFile::Parse(std::string_view xml) {
  if (!IsValidUtf8(xml)) ThrowDamaged("not UTF-8");
  if (xml.find('\0') != std::string_view::npos) ThrowDamaged("a zero byte");
  pugi::xml_document document;
  auto result = document.load_buffer(xml.data(), xml.size(), pugi::parse_default, pugi::encoding_utf8);
  if (!result) ThrowDamaged(result.description() + (" at byte " + std::to_string(result.offset)));

  LanguageFile file;
  auto language = OnlyChild(document, "language");
  file.code_ = NumberAttribute(language, "code");
  file.name_ = ToWx(Attribute(language, "name"));
  std::string direction = Attribute(language, "direction");
  if (direction != "ltr" && direction != "rtl") ThrowDamaged("direction \"" + direction + "\"");
  file.rightToLeft_ = direction == "rtl";
  for (const auto& child : language.children()) {
    std::string_view name = child.name();
    if (child.type() == pugi::node_element && name != "texts" && name != "forms") {
      ThrowUnexpectedElement(child);
    }
  }
  file.texts_ = ReadTexts(OnlyChild(language, "texts"));
  ForEachChild(OnlyChild(language, "forms"), "form", [&](const pugi::xml_node& form) {
    wxString name = ToWx(Attribute(form, "name"));
    if (!file.forms_.emplace(name, ReadCaptions(form)).second) {
      ThrowDamaged("form \"" + ToUtf8(name) + "\" twice");
    }
    if (auto title = form.attribute("title")) file.titles_[name] = ToWx(title.value());
  });
  return file;
}

std::optional<wxString> LanguageFile::Text(int number) const {
  return Find(texts_, number);
}

std::optional<wxString> LanguageFile::Title(const wxString& form) const {
  return Find(titles_, form);
}

std::optional<LanguageFile::Caption> LanguageFile::CaptionOf(const wxString& form,
                                                             const wxString& control) const {
  auto captions = forms_.find(form);
  if (captions == forms_.end()) return std::nullopt;
  return Find(captions->second, control);
}

}  // namespace mindloft::Tessaline
