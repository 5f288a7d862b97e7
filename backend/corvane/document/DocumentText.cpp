#include "backend/corvane/document/DocumentText.h"

#include <pugixml.hpp>

#include "backend/corvane/document/BrokenDocument.h"
#include "backend/corvane/document/DocumentCleaner.h"
#include "backend/corvane/document/DocumentLimits.h"
#include "backend/corvane/document/DocumentXml.h"
#include "backend/corvane/document/SanitizeDocument.h"
#include "platform/Unicode.h"

namespace mindloft::Corvane {
namespace {

/// No declaration is longer than this.
constexpr std::size_t kBeginning = 200;

std::string_view WithoutBlanks(std::string_view text) {
  const auto start = text.find_first_not_of(" \t\r\n");
  return start == std::string_view::npos ? std::string_view() : text.substr(start);
}

std::string Printable(std::string_view text) {
  std::string printable;
  for (const char each : text) {
    const auto code = static_cast<unsigned char>(each);
    if ((code >= 0x20 && code != 0x7F) || each == '\t') printable += each;
  }
  return printable;
}

void AddText(const pugi::xml_node& box, std::string& text);

void AddTable(const pugi::xml_node& table, std::string& text) {
  const int columns = table.attribute("cols").as_int();
  int column = 0;
  for (const auto& cell : table.children()) {
    AddText(cell, text);
    if (!text.empty() && text.back() == '\n') text.pop_back();
    text += ++column % columns == 0 ? '\n' : '\t';
  }
  if (!text.empty()) text.pop_back();
}

/// Of a clean document, so not deep.
void AddText(const pugi::xml_node& box, std::string& text) {
  for (const auto& paragraph : box.children()) {
    for (const auto& part : paragraph.children()) {
      const std::string_view name = part.name();
      if (name == "text")
        text += TextOfRun(part);
      else if (name == "symbol")
        text += '\n';
      else
        AddTable(part, text);
    }
    text += '\n';
  }
}

}  // namespace

bool IsFormattedDocument(std::string_view stored) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (stored.starts_with(kByteOrderMark)) stored.remove_prefix(kByteOrderMark.size());
  stored = WithoutBlanks(stored);
  if (stored.starts_with("<?xml")) {
    const auto end = stored.substr(0, kBeginning).find("?>");
    if (end == std::string_view::npos) return false;
    stored = WithoutBlanks(stored.substr(end + 2));
  }
  return stored.starts_with("<richtext ") || stored.starts_with("<richtext>");
}

std::string PlainTextOf(std::string_view stored) {
  if (!IsFormattedDocument(stored)) return std::string(stored);
  pugi::xml_document document;
  if (!ParseDocument(SanitizeDocument(stored).xml, document)) return TextOfBrokenDocument(stored);
  std::string text;
  AddText(document.child("richtext").child("paragraphlayout"), text);
  if (!text.empty()) text.pop_back();
  return text;
}

std::string DocumentOfPlainText(std::string_view text) {
  pugi::xml_document document;
  auto layout = AddDocumentRoot(document).append_child("paragraphlayout");
  const std::string clean = platform::CleanUtf8(text);
  std::string_view rest = clean;
  for (std::size_t paragraphs = 0;; ++paragraphs) {
    // A line more than a document may have stays in its last paragraph.
    const auto end = paragraphs + 1 == kMostParagraphs ? std::string_view::npos : rest.find_first_of("\r\n");
    auto run = layout.append_child("paragraph").append_child("text");
    const std::string line = Printable(rest.substr(0, end));
    if (!line.empty()) run.text().set(QuotedRun(line).c_str());
    if (end == std::string_view::npos) break;
    rest.remove_prefix(rest.substr(end).starts_with("\r\n") ? end + 2 : end + 1);
  }
  return WriteDocument(document);
}

}  // namespace mindloft::Corvane
