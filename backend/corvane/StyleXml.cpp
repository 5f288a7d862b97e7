#include "backend/corvane/StyleXml.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>
#include <pugixml.hpp>
#include <sstream>

namespace mindloft::Corvane {
namespace {

constexpr const char* kRoot = "style";
/// Far more than a directory stores; a parser need not be fed with everything.
constexpr std::size_t kLongestDefinition = 64 * 1024;

std::optional<int> WholeNumber(std::string_view text, int least, int greatest) {
  int number = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = failure == std::errc() && end == text.data() + text.size();
  return whole && number >= least && number <= greatest ? std::optional(number) : std::nullopt;
}

bool IsColour(std::string_view text) {
  return text.size() == 7 && text[0] == '#' && std::ranges::all_of(text.substr(1), [](char digit) {
           return std::isxdigit(static_cast<unsigned char>(digit)) != 0;
         });
}

/// Reads attributes into their places; one that cannot be read leaves its place and is told of.
class Reader {
 public:
  Reader(const pugi::xml_node& style, StyleReading& reading) : style_(style), reading_(reading) {}

  void operator()(const char* name, bool& value) {
    Take(name, [&](std::string_view text) {
      if (text != "true" && text != "false") return false;
      value = text == "true";
      return true;
    });
  }
  void operator()(const char* name, int& value, int least, int greatest) {
    Take(name, [&](std::string_view text) {
      const auto number = WholeNumber(text, least, greatest);
      value = number.value_or(value);
      return number.has_value();
    });
  }
  void Distance(const char* name, std::string& value) {
    Take(name, [&](std::string_view text) {
      const int most = StyleFormat::kLongestDistance;
      const bool fits = WholeNumber(text, -most, most).has_value();
      if (fits) value = text;
      return fits;
    });
  }
  void Colour(const char* name, std::string& value) {
    Take(name, [&](std::string_view text) {
      const bool fits = text.empty() || IsColour(text);
      if (fits) value = text;
      return fits;
    });
  }
  void Text(const char* name, std::string& value, int longest) {
    Take(name, [&](std::string_view text) {
      // At most four bytes make a character.
      const bool fits = text.size() <= 4 * static_cast<std::size_t>(longest);
      if (fits) value = text;
      return fits;
    });
  }

 private:
  template <typename Use>
  void Take(const char* name, Use use) {
    const auto attribute = style_.attribute(name);
    if (!attribute || use(std::string_view(attribute.value()))) return;
    if (!reading_.problem.empty()) reading_.problem += ";";
    reading_.problem += std::string("bad value of ") + name;
  }

  const pugi::xml_node& style_;
  StyleReading& reading_;
};

/// The document of a definition; what is wrong with it, if anything.
std::string Load(pugi::xml_document& document, std::string_view definition) {
  if (definition.size() > kLongestDefinition) return "the definition is too long";
  const auto result =
      document.load_buffer(definition.data(), definition.size(), pugi::parse_default, pugi::encoding_utf8);
  if (!result) return std::string(result.description()) + " at " + std::to_string(result.offset);
  if (!document.child(kRoot)) return "the definition is that of no style";
  return {};
}

template <typename Value>
void Put(pugi::xml_node& style, const char* name, const Value& value, const Value& otherwise) {
  // The parser lets an attribute stand there several times.
  while (style.remove_attribute(name)) continue;
  if (value == otherwise) return;
  auto attribute = style.append_attribute(name);
  if constexpr (std::is_same_v<Value, std::string>)
    attribute.set_value(value.c_str());
  else
    attribute.set_value(value);
}

}  // namespace

StyleReading ReadStyle(std::string_view definition) {
  StyleReading reading;
  if (definition.empty()) return reading;
  pugi::xml_document document;
  reading.problem = Load(document, definition);
  if (!reading.problem.empty()) return reading;
  const auto style = document.child(kRoot);
  auto& format = reading.format;
  Reader read(style, reading);
  read.Text("font", format.fontName, StyleFormat::kLongestFontName);
  read("size", format.fontSize, StyleFormat::kSmallestFont, StyleFormat::kLargestFont);
  read("bold", format.bold);
  read("italic", format.italic);
  read("underline", format.underline);
  read("strikeThrough", format.strikeThrough);
  read.Colour("colour", format.colour);
  read("alignment", format.alignment, StyleFormat::AlignDefault, StyleFormat::AlignCentred);
  read.Distance("leftIndent", format.leftIndent);
  read.Distance("rightIndent", format.rightIndent);
  read.Distance("firstLineIndent", format.firstLineIndent);
  read.Distance("spaceBefore", format.spaceBefore);
  read.Distance("spaceAfter", format.spaceAfter);
  read.Colour("background", format.background);
  read.Text("sample", format.sample, StyleFormat::kLongestSample);
  return reading;
}

std::string WriteStyle(const StyleFormat& format, std::string_view former) {
  pugi::xml_document document;
  if (!Load(document, former).empty()) {
    document.reset();
    document.append_child(kRoot);
  }
  auto style = document.child(kRoot);
  const StyleFormat plain;
  Put(style, "font", format.fontName, plain.fontName);
  Put(style, "size", format.fontSize, 0);
  Put(style, "bold", format.bold, plain.bold);
  Put(style, "italic", format.italic, plain.italic);
  Put(style, "underline", format.underline, plain.underline);
  Put(style, "strikeThrough", format.strikeThrough, plain.strikeThrough);
  Put(style, "colour", format.colour, plain.colour);
  Put(style, "alignment", format.alignment, plain.alignment);
  Put(style, "leftIndent", format.leftIndent, plain.leftIndent);
  Put(style, "rightIndent", format.rightIndent, plain.rightIndent);
  Put(style, "firstLineIndent", format.firstLineIndent, plain.firstLineIndent);
  Put(style, "spaceBefore", format.spaceBefore, plain.spaceBefore);
  Put(style, "spaceAfter", format.spaceAfter, plain.spaceAfter);
  Put(style, "background", format.background, plain.background);
  Put(style, "sample", format.sample, plain.sample);
  std::ostringstream text;
  document.save(text, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
  return text.str();
}

}  // namespace mindloft::Corvane
