#include "backend/corvane/document/HtmlStyle.h"

#include <charconv>
#include <cmath>
#include <optional>

#include "platform/Lengths.h"

namespace mindloft::Corvane {
namespace {

constexpr double kMillimetresPerInch = platform::MillimetresOf(platform::kTenthsPerInch);
constexpr double kPointsPerInch = 72;
constexpr double kPixelsPerInch = 96;
constexpr int kBold = 700;
constexpr int kItalic = 93;
constexpr int kStrikethrough = 0x4;
constexpr int kSuperscript = 0x100;
constexpr int kSubscript = 0x200;

std::string_view Trimmed(std::string_view text) {
  const auto start = text.find_first_not_of(" \t\r\n");
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(" \t\r\n") - start + 1);
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& each : lower) {
    if (each >= 'A' && each <= 'Z') each = static_cast<char>(each - 'A' + 'a');
  }
  return lower;
}

/// A name between quotation marks that end neither the style nor the attribute.
std::string QuotedFace(std::string_view face) {
  std::string quoted = "'";
  for (const char each : face) {
    if (each != '\'' && each != '"' && each != ';' && each != '\\') quoted += each;
  }
  return quoted + "'";
}

std::string Millimetres(int tenths) {
  const bool negative = tenths < 0;
  const int size = std::abs(tenths);
  return (negative ? "-" : "") + std::to_string(size / 10) + "." + std::to_string(size % 10) + "mm";
}

/// "12pt", "5mm", "16px" in units of which an inch has `perInch`.
std::optional<int> LengthOf(std::string_view text, double perInch) {
  double number = 0;
  const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (problem != std::errc() || !std::isfinite(number) || std::abs(number) > 100'000) return std::nullopt;
  const std::string_view unit(end, static_cast<std::size_t>(text.data() + text.size() - end));
  double inches = 0;
  if (unit == "pt")
    inches = number / kPointsPerInch;
  else if (unit == "px")
    inches = number / kPixelsPerInch;
  else if (unit == "mm")
    inches = number / kMillimetresPerInch;
  else if (unit == "cm")
    inches = number / (kMillimetresPerInch / 10);
  else if (unit == "in")
    inches = number;
  else if (number != 0 || !unit.empty())
    return std::nullopt;
  return static_cast<int>(std::lround(inches * perInch));
}

constexpr std::pair<std::string_view, std::string_view> kColours[] = {
    {"black", "#000000"},  {"white", "#FFFFFF"},  {"red", "#FF0000"},    {"green", "#008000"},
    {"blue", "#0000FF"},   {"yellow", "#FFFF00"}, {"gray", "#808080"},   {"grey", "#808080"},
    {"silver", "#C0C0C0"}, {"maroon", "#800000"}, {"purple", "#800080"}, {"navy", "#000080"},
    {"teal", "#008080"},   {"olive", "#808000"},  {"lime", "#00FF00"},   {"aqua", "#00FFFF"},
    {"orange", "#FFA500"}, {"fuchsia", "#FF00FF"}};

std::string ColourOf(std::string_view text) {
  const std::string lower = Lower(text);
  for (const auto& [name, colour] : kColours) {
    if (name == lower) return std::string(colour);
  }
  if (text.size() == 4 && text.front() == '#')
    return {'#', text[1], text[1], text[2], text[2], text[3], text[3]};
  return std::string(text);
}

void AddEffect(pugi::xml_node element, int effect) {
  for (const char* name : {"texteffects", "texteffectflags"})
    SetAttribute(element, name, std::to_string(element.attribute(name).as_int() | effect));
}

void ReadDeclaration(const std::string& name, std::string_view value, pugi::xml_node element) {
  const std::string lower = Lower(value);
  const auto setLength = [&](const char* attribute, double perInch) {
    if (const auto length = LengthOf(lower, perInch))
      SetAttribute(element, attribute, std::to_string(*length));
  };
  if (name == "color") {
    SetAttribute(element, "textcolor", ColourOf(value));
  } else if (name == "background-color") {
    SetAttribute(element, "bgcolor", ColourOf(value));
  } else if (name == "font-family") {
    std::string_view face = Trimmed(value.substr(0, value.find(',')));
    if (face.size() > 1 && (face.front() == '\'' || face.front() == '"'))
      face = face.substr(1, face.size() - 2);
    SetAttribute(element, "fontface", face);
  } else if (name == "font-size") {
    setLength("fontpointsize", kPointsPerInch);
  } else if (name == "font-weight") {
    const bool isNumber = lower.find_first_not_of("0123456789") == std::string::npos;
    SetAttribute(element, "fontweight", lower == "bold" ? "700" : isNumber ? lower : "400");
  } else if (name == "font-style") {
    SetAttribute(element, "fontstyle", lower == "italic" ? "93" : "90");
  } else if (name == "text-decoration" || name == "text-decoration-line") {
    if (lower.find("underline") != std::string::npos) SetAttribute(element, "fontunderlined", "1");
    if (lower.find("line-through") != std::string::npos) AddEffect(element, kStrikethrough);
  } else if (name == "vertical-align") {
    if (lower == "super") AddEffect(element, kSuperscript);
    if (lower == "sub") AddEffect(element, kSubscript);
  } else if (name == "text-align") {
    constexpr std::string_view kAlignments[] = {"left", "center", "right", "justify"};
    for (int i = 0; i < 4; ++i) {
      if (lower == kAlignments[i]) SetAttribute(element, "alignment", std::to_string(i + 1));
    }
  } else if (name == "margin-left") {
    setLength("leftindent", platform::kTenthsPerInch);
  } else if (name == "margin-right") {
    setLength("rightindent", platform::kTenthsPerInch);
  } else if (name == "margin-top") {
    setLength("parspacingbefore", platform::kTenthsPerInch);
  } else if (name == "margin-bottom") {
    setLength("parspacingafter", platform::kTenthsPerInch);
  } else if (name == "page-break-before" && lower == "always") {
    SetAttribute(element, "pagebreak", "1");
  }
}

}  // namespace

void SetAttribute(pugi::xml_node element, const char* name, std::string_view value) {
  auto attribute = element.attribute(name);
  if (!attribute) attribute = element.append_attribute(name);
  attribute.set_value(std::string(value).c_str());
}

std::string HtmlStyleOf(const pugi::xml_node& element) {
  std::string style;
  const auto add = [&](const char* name, const std::string& value) {
    if (!style.empty()) style += ';';
    style += std::string(name) + ':' + value;
  };
  std::string decorations;
  for (const auto& attribute : element.attributes()) {
    const std::string_view name = attribute.name();
    const int number = attribute.as_int();
    if (name == "textcolor") add("color", attribute.value());
    if (name == "bgcolor") add("background-color", attribute.value());
    if (name == "fontface" && *attribute.value()) add("font-family", QuotedFace(attribute.value()));
    if (name == "fontpointsize") add("font-size", std::to_string(number) + "pt");
    if (name == "fontweight") add("font-weight", number == kBold ? "bold" : std::to_string(number));
    if (name == "fontstyle") add("font-style", number == kItalic ? "italic" : "normal");
    if (name == "fontunderlined" && number) decorations += " underline";
    if (name == "texteffects" && (number & kStrikethrough)) decorations += " line-through";
    if (name == "texteffects" && (number & kSuperscript)) add("vertical-align", "super");
    if (name == "texteffects" && (number & kSubscript)) add("vertical-align", "sub");
    constexpr const char* kAlignments[] = {"", "left", "center", "right", "justify"};
    if (name == "alignment" && number > 0 && number < 5) add("text-align", kAlignments[number]);
    if (name == "rightindent") add("margin-right", Millimetres(number));
    if (name == "parspacingbefore") add("margin-top", Millimetres(number));
    if (name == "parspacingafter") add("margin-bottom", Millimetres(number));
    if (name == "pagebreak" && number) add("page-break-before", "always");
  }
  const auto leftIndent = element.attribute("leftindent");
  const auto subIndent = element.attribute("leftsubindent");
  if (leftIndent || subIndent) {
    // The component indents the first line by the one and the others by the sum of both.
    add("margin-left", Millimetres(leftIndent.as_int() + subIndent.as_int()));
    if (subIndent.as_int() != 0) add("text-indent", Millimetres(-subIndent.as_int()));
  }
  if (!decorations.empty()) add("text-decoration", decorations.substr(1));
  return style;
}

void ReadHtmlStyle(std::string_view style, pugi::xml_node element) {
  int firstLine = 0;
  while (!style.empty()) {
    const auto end = style.find(';');
    const auto declaration = style.substr(0, end);
    const auto colon = declaration.find(':');
    if (colon != std::string_view::npos) {
      const std::string name = Lower(Trimmed(declaration.substr(0, colon)));
      const auto value = Trimmed(declaration.substr(colon + 1));
      if (name == "text-indent")
        firstLine = LengthOf(Lower(value), platform::kTenthsPerInch).value_or(0);
      else
        ReadDeclaration(name, value, element);
    }
    if (end == std::string_view::npos) break;
    style.remove_prefix(end + 1);
  }
  if (firstLine == 0) return;
  const int left = element.attribute("leftindent").as_int();
  SetAttribute(element, "leftindent", std::to_string(left + firstLine));
  SetAttribute(element, "leftsubindent", std::to_string(-firstLine));
}

}  // namespace mindloft::Corvane
