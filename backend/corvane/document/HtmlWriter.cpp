#include "backend/corvane/document/HtmlWriter.h"

#include <cstdio>
#include <string>
#include <string_view>

#include "backend/corvane/document/DocumentCleaner.h"
#include "backend/corvane/document/DocumentHtml.h"
#include "backend/corvane/document/DocumentXml.h"
#include "backend/corvane/document/HtmlStyle.h"

namespace mindloft::Corvane {
namespace {

/// Of the styles that the editor offers.
constexpr std::pair<std::string_view, const char*> kElementOfStyle[] = {
    {"Heading 1", "h1"}, {"Heading 2", "h2"}, {"Heading 3", "h3"}, {"Quotation", "blockquote"}};

const char* ElementOf(const pugi::xml_node& paragraph) {
  for (const auto& [style, element] : kElementOfStyle) {
    if (style == paragraph.attribute("parstyle").value()) return element;
  }
  return "p";
}

/// "ul", "ol" or null for a paragraph of no list.
const char* ListOf(const pugi::xml_node& paragraph) {
  const int bullet = paragraph.attribute("bulletstyle").as_int();
  if (bullet & (kSymbolBullet | kStandardBullet)) return "ul";
  return bullet != 0 ? "ol" : nullptr;
}

const char* NumberingOf(const pugi::xml_node& paragraph) {
  const int bullet = paragraph.attribute("bulletstyle").as_int();
  if (bullet & kLetterBullet) return "a";
  return bullet & kRomanBullet ? "I" : "1";
}

void AddStyle(pugi::xml_node element, const pugi::xml_node& source) {
  const std::string style = HtmlStyleOf(source);
  if (!style.empty()) element.append_attribute("style") = style.c_str();
}

/// Blanks that HTML would take for one, or for none at an edge, and tabulators stay visible.
void AddText(pugi::xml_node target, const std::string& text) {
  std::string kept;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isEdge = i == 0 || i + 1 == text.size() || text[i - 1] == ' ' || text[i - 1] == '\t';
    if (text[i] == '\t')
      kept += "\xE2\x80\x83";  // a wide blank
    else if (text[i] == ' ' && isEdge)
      kept += "\xC2\xA0";  // one that does not break
    else
      kept += text[i];
  }
  target.append_child(pugi::node_pcdata).set_value(kept.c_str());
}

void WriteTable(const pugi::xml_node& table, pugi::xml_node target) {
  const int columns = table.attribute("cols").as_int(1);
  auto written = target.append_child("table");
  std::string style = "border-collapse:collapse";
  int width = 0;
  int flags = 0;
  constexpr int kPerCent = 4;
  const bool hasWidth = std::sscanf(table.attribute("width").value(), "%d,%d", &width, &flags) == 2;
  if (hasWidth && (flags & kPerCent)) style += ";width:" + std::to_string(width) + "%";
  written.append_attribute("style") = style.c_str();
  pugi::xml_node row;
  int column = 0;
  for (const auto& cell : table.children()) {
    if (column == 0) row = written.append_child("tr");
    auto field = row.append_child("td");
    std::string look = HtmlStyleOf(cell);
    if (cell.attribute("border-left-style").as_int() != 0)
      look += (look.empty() ? "" : ";") + std::string("border:1px solid ") +
              cell.attribute("border-left-color").value();
    if (!look.empty()) field.append_attribute("style") = look.c_str();
    WriteHtml(cell, field);
    column = (column + 1) % columns;
  }
}

void WriteParts(const pugi::xml_node& paragraph, pugi::xml_node target) {
  for (const auto& part : paragraph.children()) {
    const std::string_view name = part.name();
    if (name == "symbol") {
      target.append_child("br");
    } else if (name == "text") {
      const std::string text = TextOfRun(part);
      if (text.empty()) continue;
      auto run = part.first_attribute() ? target.append_child("span") : target;
      if (part.first_attribute()) AddStyle(run, part);
      AddText(run, text);
    }
  }
}

bool HasTable(const pugi::xml_node& paragraph) {
  return paragraph.child("table");
}

}  // namespace

void WriteHtml(const pugi::xml_node& box, pugi::xml_node body) {
  pugi::xml_node list;
  for (const auto& paragraph : box.children("paragraph")) {
    const char* kind = ListOf(paragraph);
    const bool continues = kind && list && std::string_view(list.name()) == kind;
    if (kind && !continues) {
      list = body.append_child(kind);
      if (std::string_view(kind) == "ol") {
        list.append_attribute("type") = NumberingOf(paragraph);
        const int start = paragraph.attribute("bulletnumber").as_int(1);
        if (start > 1) list.append_attribute("start") = start;
      }
    }
    if (!kind) list = {};
    // A paragraph of HTML holds no table.
    const bool isText = !HasTable(paragraph) || paragraph.child("text").text();
    if (isText) {
      auto element = kind ? list.append_child("li") : body.append_child(ElementOf(paragraph));
      AddStyle(element, paragraph);
      WriteParts(paragraph, element);
      if (!element.first_child()) element.append_child("br");
    }
    for (const auto& table : paragraph.children("table")) WriteTable(table, body);
  }
}

std::string HtmlOfDocument(std::string_view stored) {
  pugi::xml_document source;
  pugi::xml_document target;
  auto html = target.append_child("html");
  auto head = html.append_child("head");
  head.append_child("meta").append_attribute("charset") = "utf-8";
  auto body = html.append_child("body");
  if (ParseDocument(SanitizeDocument(stored).xml, source)) {
    const auto layout = source.child("richtext").child("paragraphlayout");
    AddStyle(body, layout);
    WriteHtml(layout, body);
  }
  return "<!DOCTYPE html>\n" + WriteDocument(target);
}

}  // namespace mindloft::Corvane
